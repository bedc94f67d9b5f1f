package orvane.str.diskarray;

/** Lacks used_rate, the last field whose failure drops the object. */
public class PerformanceCollectGraphProcessor {
    public int valid;
    public short used_rate_absent;
}
