package orvane.str.diskarray;

public class KXiSCSICHAPUserInfo {
    public int user_valid;
    public int ctrl_flag;
    public String user_name;
    public String secret;
    public byte[] target_bitmap = new byte[32];
}
