package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class WWNHGPortInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int security;
    public int wwn_count;
    public WWNHostInfo[] wwn;
}
