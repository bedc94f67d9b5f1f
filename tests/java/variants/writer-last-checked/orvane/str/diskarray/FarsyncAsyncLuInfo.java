package orvane.str.diskarray;

/** Lacks synchronized_time, the last field whose failure drops the object. */
public class FarsyncAsyncLuInfo {
    public int lun;
    public int pair_status;
    public int pair_attr;
    public int ctg_num;
    public int lu_capacity;
    public int remote_lu;
    public String remote_serial;
    public int member_valid;
    public int synchronized_rate;
    public int difference_capacity;
    public int difference_rate;
    public DateTime synchronized_time_absent;
}
