package orvane.str.diskarray;

public class PerformanceCollectGraphRG {
    public PerformanceCollectGraphBase base;
}
