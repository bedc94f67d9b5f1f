package orvane.str.diskarray;

public class KXiSCSIPortCTLInfo {
    public KXiSCSIPortPortInfo[] port;
}
