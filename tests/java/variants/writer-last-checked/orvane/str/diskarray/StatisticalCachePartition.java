package orvane.str.diskarray;

/** Lacks seg_lock_cnt, the last field whose failure drops the object. */
public class StatisticalCachePartition {
    public int wrt_inhcnt;
    public int wrt_outhcnt;
    public int seqwr_bufcnt;
    public int seg_lock_cnt_absent;
}
