package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class SpinDownUpRGInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int rgnum;
    public int rg_power_saving_status;
    public int rg_power_saving;
    public int spin_down_count;
    public int spin_error;
}
