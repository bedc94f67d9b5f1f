package orvane.str.diskarray;

public class KXiSNSInformation {
    public KXiSNSCTLInfo[] ctl;
}
