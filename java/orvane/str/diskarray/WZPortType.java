package orvane.str.diskarray;

public class WZPortType {
    public int port_type;
    public int[] port_mode;
    public WZPortOption[] port_option;
}
