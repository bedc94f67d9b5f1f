package orvane.str.diskarray;

/** Lacks graphinfo, the last field whose failure drops the object. */
public class PerformanceCollectGraphInfo {
    public PerformanceCollectGraph[] graphinfo_absent;
}
