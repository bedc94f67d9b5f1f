package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalCommandStatus_Info {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int r_cache;
    public int w_cache;
    public int seq_r;
    public int seq_w;
    public int pre_exec;
    public int w_through;
    public int re_asign;
    public int rd_miss;
    public int wr_spl;
}
