package orvane.str.diskarray;

/** Lacks timeout_error_count, the last field whose failure drops the object. */
public class VUError_Info {
    public int valid;
    public int support;
    public int timeout_error_count_absent;
}
