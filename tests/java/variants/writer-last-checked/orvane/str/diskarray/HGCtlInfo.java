package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class HGCtlInfo {
    public HGPortInfo[] port_absent;
}
