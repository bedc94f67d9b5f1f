package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class HGOption {
    public HGOptionValidIndex support_index;
    public HGOptionValidIndex valid_index;
    public int HostGroupValid;
    public HGOptionCtlInfo[] ctl_absent;
}
