package orvane.str.diskarray;

/** Lacks port_option, the last field whose failure drops the object. */
public class WZPortType {
    public int port_type;
    public int[] port_mode;
    public WZPortOption[] port_option_absent;
}
