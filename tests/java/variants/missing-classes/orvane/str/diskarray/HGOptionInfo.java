package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class HGOptionInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int option;
    public int[] option2 = new int[2];
    public int option3;
    public int platform_id;
    public int alternate_path_id;
    public int failover_id;
    public int special_mode_id;
}
