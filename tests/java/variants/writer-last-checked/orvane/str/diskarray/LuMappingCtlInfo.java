package orvane.str.diskarray;

/** Lacks port, the last field whose failure drops the object. */
public class LuMappingCtlInfo {
    public LuMappingPortInfo[] port_absent;
}
