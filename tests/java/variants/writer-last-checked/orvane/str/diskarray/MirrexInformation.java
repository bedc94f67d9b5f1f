package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class MirrexInformation {
    public int option;
    public int pair_count;
    public MirrexLuInfo[] lu_absent;
}
