package orvane.str.diskarray;

public class KXiSCSIInitiatorPortInfo {
    public int port_valid;
    public int security;
    public int initiator_max_count;
    public int initiator_count;
    public KXiSCSIInitiatorInfo[] initiator;
}
