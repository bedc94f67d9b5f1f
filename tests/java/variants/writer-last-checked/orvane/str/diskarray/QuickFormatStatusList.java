package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class QuickFormatStatusList {
    public int priority_mode;
    public int format_mode;
    public QuickFormatStatus[] lu_absent;
}
