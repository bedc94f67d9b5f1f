package orvane.str.diskarray;

public class WWNInformation {
    public int lun_security_opt;
    public WWNCtlInfo[] ctl;
}
