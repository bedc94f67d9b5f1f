package orvane.str.diskarray;

/** Lacks ether, its last unchecked field. */
public class KXiSCSIPortPortInfo {
    public int port_valid;
    public int set_valid;
    public String ip_address;
    public String subnet;
    public String gateway;
    public int port_num;
    public String ether_absent;
    public int keep_alive_timer;
    public int mtu;
    public int set_status;
}
