package orvane.str.diskarray;

/** Lacks secret, its last unchecked field. */
public class KXiSCSITargetInfo {
    public int target_valid;
    public String target_name;
    public String iscsi_name;
    public int authmethod;
    public int algorithm;
    public int auth;
    public String user_name;
    public String secret_absent;
}
