package orvane.str.diskarray;

public class KXiSCSIInitiatorInformationAll {
    public int option;
    public KXiSCSIInitiatorCTLInfo[] ctl;
}
