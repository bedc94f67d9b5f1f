package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class KXiSCSICHAPUserCTLInfo {
    public KXiSCSICHAPUserPortInfo[] port_absent;
}
