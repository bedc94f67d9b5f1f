package orvane.str.diskarray;

/** Lacks cachewritependingrate, the last field whose failure drops the object. */
public class PerformanceCollectGraphCache {
    public int valid;
    public short cachewritependingrate_absent;
}
