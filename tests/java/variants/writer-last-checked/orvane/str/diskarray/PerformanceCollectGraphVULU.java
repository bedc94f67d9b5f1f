package orvane.str.diskarray;

/** Lacks data_transfer, the last field whose failure drops the object. */
public class PerformanceCollectGraphVULU {
    public PerformanceCollectGraphVUBase data_transfer_absent;
}
