package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class KXiSCSIPing {
    public KXiSCSIPingCTL[] ctl_absent;
}
