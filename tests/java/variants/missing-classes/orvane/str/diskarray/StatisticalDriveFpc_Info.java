package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalDriveFpc_Info {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int normal_fpc_err;
    public int alternate_fpc_err;
    public int normal_link_err;
    public int alternate_link_err;
    public int normal_link_fail;
    public int alternate_link_fail;
}
