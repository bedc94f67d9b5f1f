package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class KXiSCSILoginInitiatorCTLInfo {
    public KXiSCSILoginInitiatorPortInfo[] port_absent;
}
