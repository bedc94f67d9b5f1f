package orvane.str.diskarray;

public class HGOption {
    public HGOptionValidIndex support_index;
    public HGOptionValidIndex valid_index;
    public int HostGroupValid;
    public HGOptionCtlInfo[] ctl;
}
