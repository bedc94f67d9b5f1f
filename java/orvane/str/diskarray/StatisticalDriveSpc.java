package orvane.str.diskarray;

public class StatisticalDriveSpc {
    public int retry;
    public int err_threshold;
    public int[] err_count;
}
