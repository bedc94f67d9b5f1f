package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class CachePartitionAll_Info {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int valid;
    public int support;
    public int partition_valid;
    public int partition_cache_size;
    public int used_cache_size;
    public int used_cache_clean;
    public int used_cache_middle;
    public int used_cache_physical;
}
