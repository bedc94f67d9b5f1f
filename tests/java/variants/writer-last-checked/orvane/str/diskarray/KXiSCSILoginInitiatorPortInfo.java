package orvane.str.diskarray;

/** Lacks initiator, the last field whose failure drops the object. */
public class KXiSCSILoginInitiatorPortInfo {
    public int port_valid;
    public int initiator_max_count;
    public int initiator_count;
    public KXiSCSILoginInitiatorInfo[] initiator_absent;
}
