package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class FarsyncPairInformation {
    public int option;
    public int pair_count;
    public FarsyncLuInfo[] lu_absent;
}
