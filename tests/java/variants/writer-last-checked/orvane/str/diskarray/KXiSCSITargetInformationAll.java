package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class KXiSCSITargetInformationAll {
    public int option;
    public KXiSCSITargetCTLInfo[] ctl_absent;
}
