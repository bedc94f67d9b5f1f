package orvane.str.diskarray;

/** Lacks hg_number, the last field whose failure drops the object. */
public class WWNHostInfo {
    public String node_name;
    public String port_name;
    public int hostflag;
    public int hg_number_absent;
    public String wname;
}
