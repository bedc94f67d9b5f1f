package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class KXiSNSCTLInfo {
    public KXiSNSPortInfo[] port_absent;
}
