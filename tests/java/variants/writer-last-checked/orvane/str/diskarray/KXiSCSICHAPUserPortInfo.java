package orvane.str.diskarray;

/** Lacks user, the last field whose failure drops the object. */
public class KXiSCSICHAPUserPortInfo {
    public int port_valid;
    public int security;
    public int user_max_count;
    public int user_count;
    public KXiSCSICHAPUserInfo[] user_absent;
}
