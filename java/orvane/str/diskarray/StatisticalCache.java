package orvane.str.diskarray;

public class StatisticalCache {
    public int wrt_inhcnt;
    public int wrt_outhcnt;
    public int seqwr_bufcnt;
    public int seg_lock_cnt;
    public StatisticalCachePartition[] cachepartition;
}
