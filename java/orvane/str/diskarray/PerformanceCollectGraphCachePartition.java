package orvane.str.diskarray;

public class PerformanceCollectGraphCachePartition {
    public int valid;
    public short cachewritependingrate;
    public short cachecleanusagerate;
    public short cachemiddleusagegrate;
    public short cachephysicalusagerate;
    public short cachetotalusagerate;
}
