package orvane.str.diskarray;

/** Lacks wr_spl, the last field whose failure drops the object. */
public class StatisticalCommandStatus_Info {
    public int r_cache;
    public int w_cache;
    public int seq_r;
    public int seq_w;
    public int pre_exec;
    public int w_through;
    public int re_asign;
    public int rd_miss;
    public int wr_spl_absent;
}
