package orvane.str.diskarray;

public class KXiSCSIPortInformation {
    public KXiSCSIPortCTLInfo[] ctl;
}
