package orvane.str.diskarray;

/** Lacks remote_serial, its last unchecked field. */
public class FarsyncLuInfo {
    public int support_index;
    public int valid_index;
    public int lun;
    public int pair_status;
    public int pair_attr;
    public int changed_rate;
    public String remote_serial_absent;
    public int remote_lu;
}
