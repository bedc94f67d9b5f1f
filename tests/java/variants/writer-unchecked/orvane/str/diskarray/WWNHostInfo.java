package orvane.str.diskarray;

/** Lacks wname, its last unchecked field. */
public class WWNHostInfo {
    public String node_name;
    public String port_name;
    public int hostflag;
    public int hg_number;
    public String wname_absent;
}
