package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class WWNHGInformation {
    public int lun_manage;
    public WWNHGCtlInfo[] ctl_absent;
}
