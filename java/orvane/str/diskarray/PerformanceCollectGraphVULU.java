package orvane.str.diskarray;

public class PerformanceCollectGraphVULU {
    public PerformanceCollectGraphVUBase data_transfer;
}
