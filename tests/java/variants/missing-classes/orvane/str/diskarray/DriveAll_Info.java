package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class DriveAll_Info {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public CommandAll_Info drive_info;
    public int valid;
    public int support;
    public int not_opr_time_h;
    public int not_opr_time_l;
    public int[] tag_count;
    public int unload_time;
}
