package orvane.str.diskarray;

public class LuCachePartition {
    public int option;
    public int support_index;
    public int valid_index;
    public int[] current_prt_num;
    public int[] reserve_prt_num;
    public int[] now_prt_num;
    public int[] pair_prt_num;
}
