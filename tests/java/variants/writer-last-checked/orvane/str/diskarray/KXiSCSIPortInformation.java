package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class KXiSCSIPortInformation {
    public KXiSCSIPortCTLInfo[] ctl_absent;
}
