package orvane.str.diskarray;

public class KXiSCSITargetPortInfo {
    public int port_valid;
    public int security;
    public int target_max_count;
    public int target_count;
    public KXiSCSITargetInfo[] target;
}
