package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class KXiSCSILoginInitiatorInformationAll {
    public KXiSCSILoginInitiatorCTLInfo[] ctl_absent;
}
