package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class WWNCtlInfo {
    public WWNPortInfo[] port_absent;
}
