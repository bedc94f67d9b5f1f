package orvane.str.diskarray;

public class PerformanceCollectGraphVUPort {
    public PerformanceCollectGraphVUBase control;
    public PerformanceCollectGraphVUBase data_transfer;
}
