package orvane.str.diskarray;

/** Lacks port_num, the last field whose failure drops the object. */
public class KXiSNSPortInfo {
    public int port_valid;
    public int set_valid;
    public int isns_use;
    public String ip_address;
    public int port_num_absent;
}
