package orvane.str.diskarray;

/** Lacks stg_hed_size, the last field whose failure drops the object. */
public class PrefetchInformation {
    public int stg_rd0;
    public int stg_rd1;
    public int stg_rd5;
    public int stg_next;
    public int stg_hed_size_absent;
}
