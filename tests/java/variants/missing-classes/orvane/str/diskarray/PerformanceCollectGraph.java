package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class PerformanceCollectGraph {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public KXTime[] mtime;
    public PerformanceCollectGraphPort[] port;
    public PerformanceCollectGraphLU[] lu;
    public PerformanceCollectGraphCache cache;
    public PerformanceCollectGraphBackend[] backend;
    public PerformanceCollectGraphDrive[][] drive;
    public PerformanceCollectGraphProcessor processor;
    public PerformanceCollectGraphDriveOpr[][] driveopr;
    public PerformanceCollectGraphRG[] rg;
    public PerformanceCollectGraphCache2 cache2;
    public PerformanceCollectGraphLUEx[] luex;
    public PerformanceCollectGraphCachePartition[] cachepartition;
    public PerformanceCollectGraphVUPort[] vu_port;
    public PerformanceCollectGraphVULU[] vu_lu;
}
