package orvane.str.diskarray;

/** Lacks write_cache, the last field whose failure drops the object. */
public class StatisticalCommand_Info {
    public int read_count;
    public int write_count;
    public int read_cache;
    public int write_cache_absent;
}
