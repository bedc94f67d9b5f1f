package orvane.str.diskarray;

/** Lacks err_count, the last field whose failure drops the object. */
public class StatisticalHostSpc_Info {
    public int retry;
    public int err_threshold;
    public int err_count_absent;
}
