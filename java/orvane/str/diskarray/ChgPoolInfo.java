package orvane.str.diskarray;

public class ChgPoolInfo {
    public int ctl_no;
    public int pool_no;
    public int poolinfo_chg_index;
    public int threshold;
}
