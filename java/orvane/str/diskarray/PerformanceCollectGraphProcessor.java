package orvane.str.diskarray;

public class PerformanceCollectGraphProcessor {
    public int valid;
    public short used_rate;
}
