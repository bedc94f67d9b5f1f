package orvane.str.diskarray;

public class PerformanceCollectGraphBackend {
    public PerformanceCollectGraphBase base;
}
