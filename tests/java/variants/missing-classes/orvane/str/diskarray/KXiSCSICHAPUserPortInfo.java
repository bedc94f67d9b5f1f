package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXiSCSICHAPUserPortInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int port_valid;
    public int security;
    public int user_max_count;
    public int user_count;
    public KXiSCSICHAPUserInfo[] user;
}
