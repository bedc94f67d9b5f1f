package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class TargetId {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int ctrl_flag;
    public int target_id_mode;
    public TargetConfig[] target_config;
}
