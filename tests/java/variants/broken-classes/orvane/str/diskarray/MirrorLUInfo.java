package orvane.str.diskarray;

/** Lacks its creation time. */
public class MirrorLUInfo {
    public int mirror_no;
    public int lun;
    public int ctl_no;
    public int pool_no;
    public int pair_status;
    public int usedcapa;
    public int changed_rate;
}
