package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class LuMappingHGInfo {
    public int[] lu_absent = new int[256];
}
