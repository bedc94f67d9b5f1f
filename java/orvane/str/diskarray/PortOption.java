package orvane.str.diskarray;

public class PortOption {
    public PortOptionValidIndex support_index;
    public PortOptionValidIndex valid_index;
    public PortOptionCtlInfo[] ctl;
}
