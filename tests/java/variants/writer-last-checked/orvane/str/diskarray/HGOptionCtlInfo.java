package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class HGOptionCtlInfo {
    public HGOptionPortInfo[] port_absent;
}
