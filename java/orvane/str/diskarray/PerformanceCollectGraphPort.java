package orvane.str.diskarray;

public class PerformanceCollectGraphPort {
    public PerformanceCollectGraphBase base;
}
