package orvane.str.diskarray;

/** Lacks target, the last field whose failure drops the object. */
public class KXiSCSITargetPortInfo {
    public int port_valid;
    public int security;
    public int target_max_count;
    public int target_count;
    public KXiSCSITargetInfo[] target_absent;
}
