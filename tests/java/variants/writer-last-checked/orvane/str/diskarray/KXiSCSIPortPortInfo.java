package orvane.str.diskarray;

/** Lacks set_status, the last field whose failure drops the object. */
public class KXiSCSIPortPortInfo {
    public int port_valid;
    public int set_valid;
    public String ip_address;
    public String subnet;
    public String gateway;
    public int port_num;
    public String ether;
    public int keep_alive_timer;
    public int mtu;
    public int set_status_absent;
}
