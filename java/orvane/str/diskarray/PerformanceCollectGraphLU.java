package orvane.str.diskarray;

public class PerformanceCollectGraphLU {
    public PerformanceCollectGraphBase base;
}
