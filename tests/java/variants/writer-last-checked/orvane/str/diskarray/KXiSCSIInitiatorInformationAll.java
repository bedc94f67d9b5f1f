package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class KXiSCSIInitiatorInformationAll {
    public int option;
    public KXiSCSIInitiatorCTLInfo[] ctl_absent;
}
