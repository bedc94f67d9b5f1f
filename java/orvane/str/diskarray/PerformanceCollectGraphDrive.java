package orvane.str.diskarray;

public class PerformanceCollectGraphDrive {
    public PerformanceCollectGraphBase base;
}
