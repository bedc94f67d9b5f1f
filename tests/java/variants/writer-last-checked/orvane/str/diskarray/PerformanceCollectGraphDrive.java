package orvane.str.diskarray;

/** Lacks base, the last field whose failure drops the object. */
public class PerformanceCollectGraphDrive {
    public PerformanceCollectGraphBase base_absent;
}
