package orvane.str.diskarray;

public class HGList {
    public int lun_manage;
    public HGCtlInfo[] ctl;
}
