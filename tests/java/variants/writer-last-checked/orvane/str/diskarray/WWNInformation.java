package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class WWNInformation {
    public int lun_security_opt;
    public WWNCtlInfo[] ctl_absent;
}
