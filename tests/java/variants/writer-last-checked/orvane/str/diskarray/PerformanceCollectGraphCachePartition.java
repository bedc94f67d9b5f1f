package orvane.str.diskarray;

/** Lacks cachetotalusagerate, the last field whose failure drops the object. */
public class PerformanceCollectGraphCachePartition {
    public int valid;
    public short cachewritependingrate;
    public short cachecleanusagerate;
    public short cachemiddleusagegrate;
    public short cachephysicalusagerate;
    public short cachetotalusagerate_absent;
}
