package orvane.str.diskarray;

public class KXiSCSIInitiatorCTLInfo {
    public KXiSCSIInitiatorPortInfo[] port;
}
