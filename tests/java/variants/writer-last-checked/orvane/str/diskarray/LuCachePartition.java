package orvane.str.diskarray;

/** Lacks pair_prt_num, the last field whose failure drops the object. */
public class LuCachePartition {
    public int option;
    public int support_index;
    public int valid_index;
    public int[] current_prt_num;
    public int[] reserve_prt_num;
    public int[] now_prt_num;
    public int[] pair_prt_num_absent;
}
