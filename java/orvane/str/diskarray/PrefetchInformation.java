package orvane.str.diskarray;

public class PrefetchInformation {
    public int stg_rd0;
    public int stg_rd1;
    public int stg_rd5;
    public int stg_next;
    public int stg_hed_size;
}
