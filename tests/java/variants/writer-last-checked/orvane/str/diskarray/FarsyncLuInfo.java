package orvane.str.diskarray;

/** Lacks remote_lu, the last field whose failure drops the object. */
public class FarsyncLuInfo {
    public int support_index;
    public int valid_index;
    public int lun;
    public int pair_status;
    public int pair_attr;
    public int changed_rate;
    public String remote_serial;
    public int remote_lu_absent;
}
