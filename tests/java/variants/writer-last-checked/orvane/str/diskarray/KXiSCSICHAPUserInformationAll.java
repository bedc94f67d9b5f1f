package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class KXiSCSICHAPUserInformationAll {
    public int option;
    public KXiSCSICHAPUserCTLInfo[] ctl_absent;
}
