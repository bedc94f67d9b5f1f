package orvane.str.diskarray;

/** Lacks data_transfer, the last field whose failure drops the object. */
public class PerformanceCollectGraphVUPort {
    public PerformanceCollectGraphVUBase control;
    public PerformanceCollectGraphVUBase data_transfer_absent;
}
