package orvane.str.diskarray;

public class PerformanceCollectGraphCache {
    public int valid;
    public short cachewritependingrate;
}
