package orvane.str.diskarray;

public class KXiSCSILoginInitiatorPortInfo {
    public int port_valid;
    public int initiator_max_count;
    public int initiator_count;
    public KXiSCSILoginInitiatorInfo[] initiator;
}
