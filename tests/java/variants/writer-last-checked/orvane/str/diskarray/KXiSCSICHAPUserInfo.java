package orvane.str.diskarray;

/** Lacks target_bitmap, the last field whose failure drops the object. */
public class KXiSCSICHAPUserInfo {
    public int user_valid;
    public int ctrl_flag;
    public String user_name;
    public String secret;
    public byte[] target_bitmap_absent = new byte[32];
}
