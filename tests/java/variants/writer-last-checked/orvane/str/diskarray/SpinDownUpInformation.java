package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class SpinDownUpInformation {
    public int option;
    public int rg_count;
    public SpinDownUpRGInfo[] rg;
    public int lu_count;
    public SpinDownUpLuInfo[] lu_absent;
}
