package orvane.str.diskarray;

public class PerformanceCollectGraphLUEx {
    public int valid;
    public int tag_count;
}
