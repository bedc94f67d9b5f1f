package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class LuFormatStatusList {
    public LuFormatStatus[] lu_absent;
}
