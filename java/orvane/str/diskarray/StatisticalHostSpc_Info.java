package orvane.str.diskarray;

public class StatisticalHostSpc_Info {
    public int retry;
    public int err_threshold;
    public int err_count;
}
