package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class WWNHGCtlInfo {
    public WWNHGPortInfo[] port_absent;
}
