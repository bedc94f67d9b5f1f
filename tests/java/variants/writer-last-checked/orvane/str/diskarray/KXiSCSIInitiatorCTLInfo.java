package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class KXiSCSIInitiatorCTLInfo {
    public KXiSCSIInitiatorPortInfo[] port_absent;
}
