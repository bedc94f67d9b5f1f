package orvane.str.diskarray;

/** Lacks auth, the last field whose failure drops the object. */
public class KXiSCSITargetInfo {
    public int target_valid;
    public String target_name;
    public String iscsi_name;
    public int authmethod;
    public int algorithm;
    public int auth_absent;
    public String user_name;
    public String secret;
}
