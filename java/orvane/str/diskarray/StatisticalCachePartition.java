package orvane.str.diskarray;

public class StatisticalCachePartition {
    public int wrt_inhcnt;
    public int wrt_outhcnt;
    public int seqwr_bufcnt;
    public int seg_lock_cnt;
}
