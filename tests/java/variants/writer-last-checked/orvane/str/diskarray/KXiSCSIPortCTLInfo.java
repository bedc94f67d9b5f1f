package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class KXiSCSIPortCTLInfo {
    public KXiSCSIPortPortInfo[] port_absent;
}
