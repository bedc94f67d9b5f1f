package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXiSCSICHAPUserInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int user_valid;
    public int ctrl_flag;
    public String user_name;
    public String secret;
    public byte[] target_bitmap = new byte[32];
}
