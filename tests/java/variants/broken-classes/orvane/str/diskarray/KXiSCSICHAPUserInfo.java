package orvane.str.diskarray;

/** Counts its instances; the constructor of instance `failAt` throws. */
public class KXiSCSICHAPUserInfo {
    public static int made;
    public static int failAt = Integer.MAX_VALUE;

    public int user_valid;
    public int ctrl_flag;
    public String user_name;
    public String secret;
    public byte[] target_bitmap = new byte[32];

    public KXiSCSICHAPUserInfo() {
        if (++made == failAt) throw new IllegalStateException("user " + made);
    }
}
