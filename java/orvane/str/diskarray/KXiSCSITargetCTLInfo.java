package orvane.str.diskarray;

public class KXiSCSITargetCTLInfo {
    public KXiSCSITargetPortInfo[] port;
}
