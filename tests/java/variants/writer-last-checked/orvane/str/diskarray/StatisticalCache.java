package orvane.str.diskarray;

/** Lacks cachepartition, the last field whose failure drops the object. */
public class StatisticalCache {
    public int wrt_inhcnt;
    public int wrt_outhcnt;
    public int seqwr_bufcnt;
    public int seg_lock_cnt;
    public StatisticalCachePartition[] cachepartition_absent;
}
