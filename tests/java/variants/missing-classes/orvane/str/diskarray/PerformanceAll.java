package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class PerformanceAll {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int valid;
    public int support;
    public int get_status;
    public CommandAll_Info[] port;
    public CommandAll_Info[] rg;
    public CommandAll_Info[] lu;
    public LuEx_Info[] lu_ex;
    public int all_cache_size;
    public int used_cache_size;
    public int used_cache_clean;
    public int used_cache_middle;
    public int used_cache_physical;
    public CachePartitionAll_Info[] cachePartition;
    public CacheBusAll_Info cachebus;
    public CommandAll_Info[] backend;
    public DriveAll_Info[][] drive;
    public ProcessorAll_Info processor;
    public VUDataAll_Info[] vu_port;
    public VUCommandAll_Info[] vu_lu;
    public KXTime mtime;
    public int err_code;
}
