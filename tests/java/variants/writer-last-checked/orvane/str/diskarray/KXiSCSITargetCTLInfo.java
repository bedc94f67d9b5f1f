package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class KXiSCSITargetCTLInfo {
    public KXiSCSITargetPortInfo[] port_absent;
}
