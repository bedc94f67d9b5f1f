package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class KXiSCSIPingCTL {
    public KXiSCSIPingPort[] port_absent;
}
