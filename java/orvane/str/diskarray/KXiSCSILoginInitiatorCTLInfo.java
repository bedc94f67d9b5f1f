package orvane.str.diskarray;

public class KXiSCSILoginInitiatorCTLInfo {
    public KXiSCSILoginInitiatorPortInfo[] port;
}
