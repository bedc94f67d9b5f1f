package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class KXiSNSInformation {
    public KXiSNSCTLInfo[] ctl_absent;
}
