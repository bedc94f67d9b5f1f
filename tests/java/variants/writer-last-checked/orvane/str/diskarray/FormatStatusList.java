package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class FormatStatusList {
    public int mode;
    public int totalpercent;
    public int resttime;
    public FormatStatus[] lu_absent;
}
