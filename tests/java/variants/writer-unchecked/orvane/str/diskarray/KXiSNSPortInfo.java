package orvane.str.diskarray;

/** Lacks ip_address, its last unchecked field. */
public class KXiSNSPortInfo {
    public int port_valid;
    public int set_valid;
    public int isns_use;
    public String ip_address_absent;
    public int port_num;
}
