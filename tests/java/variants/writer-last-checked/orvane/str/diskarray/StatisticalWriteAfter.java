package orvane.str.diskarray;

/** Lacks pdev, the last field whose failure drops the object. */
public class StatisticalWriteAfter {
    public int raid0_stripe_cnt;
    public int[][] raid0_stripe_job;
    public int raid5_stripe_cnt;
    public int[][] raid5_stripe_job;
    public int[][] stripe_job_rmw;
    public int[][] stripe_job_partial;
    public StatisticalWriteAfter_PDEVInfo[][] pdev_absent;
}
