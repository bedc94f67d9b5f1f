package orvane.str.diskarray;

/** Lacks remote_serial, its last unchecked field. */
public class FarsyncAsyncLuInfo {
    public int lun;
    public int pair_status;
    public int pair_attr;
    public int ctg_num;
    public int lu_capacity;
    public int remote_lu;
    public String remote_serial_absent;
    public int member_valid;
    public int synchronized_rate;
    public int difference_capacity;
    public int difference_rate;
    public DateTime synchronized_time;
}
