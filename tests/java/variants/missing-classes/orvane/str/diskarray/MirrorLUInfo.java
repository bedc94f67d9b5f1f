package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class MirrorLUInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int mirror_no;
    public int lun;
    public int ctl_no;
    public int pool_no;
    public int pair_status;
    public int usedcapa;
    public int changed_rate;
    public PairCreateTime time;
}
