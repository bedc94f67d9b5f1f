package orvane.str.diskarray;

/** Lacks vu_lu, the last field whose failure drops the object. */
public class PerformanceCollectGraph {
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
    public PerformanceCollectGraphVULU[] vu_lu_absent;
}
