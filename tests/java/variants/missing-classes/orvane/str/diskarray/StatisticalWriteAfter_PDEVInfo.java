package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalWriteAfter_PDEVInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int gather_prc_cnt;
    public int gather_max;
    public int gather_min;
    public int gather_cnt;
}
