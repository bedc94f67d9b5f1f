package orvane.str.diskarray;

/** Lacks used_cache_physical, the last field whose failure drops the object. */
public class CachePartitionAll_Info {
    public int valid;
    public int support;
    public int partition_valid;
    public int partition_cache_size;
    public int used_cache_size;
    public int used_cache_clean;
    public int used_cache_middle;
    public int used_cache_physical_absent;
}
