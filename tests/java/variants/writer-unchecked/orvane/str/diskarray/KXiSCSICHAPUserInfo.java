package orvane.str.diskarray;

/** Lacks secret, its last unchecked field. */
public class KXiSCSICHAPUserInfo {
    public int user_valid;
    public int ctrl_flag;
    public String user_name;
    public String secret_absent;
    public byte[] target_bitmap = new byte[32];
}
