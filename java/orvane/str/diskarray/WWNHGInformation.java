package orvane.str.diskarray;

public class WWNHGInformation {
    public int lun_manage;
    public WWNHGCtlInfo[] ctl;
}
