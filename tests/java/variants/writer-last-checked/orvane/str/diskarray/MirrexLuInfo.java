package orvane.str.diskarray;

/** Lacks changed_rate, the last field whose failure drops the object. */
public class MirrexLuInfo {
    public int lun;
    public int pair_status;
    public int pair_attr;
    public int changed_rate_absent;
    public String remote_type;
    public String remote_serial;
    public String remote_ldev;
}
