package orvane.str.diskarray;

/** Lacks cachetotalusagerate, the last field whose failure drops the object. */
public class PerformanceCollectGraphCache2 {
    public int valid;
    public short cachecleanusagerate;
    public short cachemiddleusagegrate;
    public short cachephysicalusagerate;
    public short cachetotalusagerate_absent;
}
