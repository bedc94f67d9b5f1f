package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class VUCommandAll_Info {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int valid;
    public int support;
    public int command_count;
    public int command_transfer_block_count;
    public int command_total_time_h;
    public int command_total_time_l;
    public int command_max_time_h;
    public int command_max_time_l;
}
