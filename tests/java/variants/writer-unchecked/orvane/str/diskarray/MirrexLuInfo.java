package orvane.str.diskarray;

/** Lacks remote_ldev, its last unchecked field. */
public class MirrexLuInfo {
    public int lun;
    public int pair_status;
    public int pair_attr;
    public int changed_rate;
    public String remote_type;
    public String remote_serial;
    public String remote_ldev_absent;
}
