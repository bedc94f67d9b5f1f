package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class PortOption {
    public PortOptionValidIndex support_index;
    public PortOptionValidIndex valid_index;
    public PortOptionCtlInfo[] ctl_absent;
}
