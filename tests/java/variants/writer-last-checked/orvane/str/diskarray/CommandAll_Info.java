package orvane.str.diskarray;

/** Lacks online_verify_count, the last field whose failure drops the object. */
public class CommandAll_Info {
    public int valid;
    public int support;
    public int read_count;
    public int write_count;
    public int read_cache;
    public int write_cache;
    public int read_size;
    public int write_size;
    public int online_verify_count_absent;
}
