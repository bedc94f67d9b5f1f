package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXiSCSIInitiatorInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int initiator_valid;
    public int ctrl_flag;
    public String initiator_name;
    public String iscsi_name;
    public byte[] target_bitmap = new byte[32];
}
