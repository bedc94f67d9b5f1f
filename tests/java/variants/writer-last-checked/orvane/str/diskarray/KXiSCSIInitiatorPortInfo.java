package orvane.str.diskarray;

/** Lacks initiator, the last field whose failure drops the object. */
public class KXiSCSIInitiatorPortInfo {
    public int port_valid;
    public int security;
    public int initiator_max_count;
    public int initiator_count;
    public KXiSCSIInitiatorInfo[] initiator_absent;
}
