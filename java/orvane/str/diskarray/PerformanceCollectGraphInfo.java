package orvane.str.diskarray;

public class PerformanceCollectGraphInfo {
    public PerformanceCollectGraph[] graphinfo;
}
