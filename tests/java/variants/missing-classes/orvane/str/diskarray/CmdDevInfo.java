package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class CmdDevInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int cmd_valid;
    public int set_valid;
    public int cmd_lu;
    public int rm_security;
}
