package orvane.str.diskarray;

/** Lacks port_common_opt, the last field whose failure drops the object. */
public class PortOptionCtlInfo {
    public int[] lip_mode;
    public int[] port_common_opt_absent;
}
