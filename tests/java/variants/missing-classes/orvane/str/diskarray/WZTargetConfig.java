package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class WZTargetConfig {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int single;
    public byte[] multi = new byte[16];
    public WZTargetLunList[] mapping;
}
