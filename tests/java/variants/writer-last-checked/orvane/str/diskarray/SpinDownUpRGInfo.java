package orvane.str.diskarray;

/** Lacks spin_error, the last field whose failure drops the object. */
public class SpinDownUpRGInfo {
    public int rgnum;
    public int rg_power_saving_status;
    public int rg_power_saving;
    public int spin_down_count;
    public int spin_error_absent;
}
