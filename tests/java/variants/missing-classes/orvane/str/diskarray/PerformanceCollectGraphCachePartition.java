package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class PerformanceCollectGraphCachePartition {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int valid;
    public short cachewritependingrate;
    public short cachecleanusagerate;
    public short cachemiddleusagegrate;
    public short cachephysicalusagerate;
    public short cachetotalusagerate;
}
