package orvane.str.diskarray;

public class PerformanceCollectGraphCache2 {
    public int valid;
    public short cachecleanusagerate;
    public short cachemiddleusagegrate;
    public short cachephysicalusagerate;
    public short cachetotalusagerate;
}
