package orvane.str.diskarray;

public class KXiSCSILoginInitiatorInformationAll {
    public KXiSCSILoginInitiatorCTLInfo[] ctl;
}
