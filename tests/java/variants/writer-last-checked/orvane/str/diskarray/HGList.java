package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class HGList {
    public int lun_manage;
    public HGCtlInfo[] ctl_absent;
}
