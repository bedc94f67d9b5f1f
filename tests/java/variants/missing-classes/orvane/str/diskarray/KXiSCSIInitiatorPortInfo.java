package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXiSCSIInitiatorPortInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int port_valid;
    public int security;
    public int initiator_max_count;
    public int initiator_count;
    public KXiSCSIInitiatorInfo[] initiator;
}
