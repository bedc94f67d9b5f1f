package orvane.str.diskarray;

public class PortOptionCtlInfo {
    public int[] lip_mode;
    public int[] port_common_opt;
}
