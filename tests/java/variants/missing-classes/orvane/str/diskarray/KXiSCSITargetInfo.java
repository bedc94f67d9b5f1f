package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXiSCSITargetInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int target_valid;
    public String target_name;
    public String iscsi_name;
    public int authmethod;
    public int algorithm;
    public int auth;
    public String user_name;
    public String secret;
}
