package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalWriteAfter {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int raid0_stripe_cnt;
    public int[][] raid0_stripe_job;
    public int raid5_stripe_cnt;
    public int[][] raid5_stripe_job;
    public int[][] stripe_job_rmw;
    public int[][] stripe_job_partial;
    public StatisticalWriteAfter_PDEVInfo[][] pdev;
}
