package orvane.str.diskarray;

/** Lacks wwn, the last field whose failure drops the object. */
public class WWNHGPortInfo {
    public int security;
    public int wwn_count;
    public WWNHostInfo[] wwn_absent;
}
