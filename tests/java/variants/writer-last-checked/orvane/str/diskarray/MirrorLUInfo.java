package orvane.str.diskarray;

/** Lacks time, the last field whose failure drops the object. */
public class MirrorLUInfo {
    public int mirror_no;
    public int lun;
    public int ctl_no;
    public int pool_no;
    public int pair_status;
    public int usedcapa;
    public int changed_rate;
    public PairCreateTime time_absent;
}
