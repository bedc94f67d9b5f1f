package orvane.str.diskarray;

public class KXiSCSITargetInformationAll {
    public int option;
    public KXiSCSITargetCTLInfo[] ctl;
}
