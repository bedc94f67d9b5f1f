package orvane.str.diskarray;

/** Lacks ether, its last unchecked field. */
public class WZLanConfig {
    public int lan_connect;
    public int dhcp_mode;
    public String ip_address;
    public String subnet;
    public String gateway;
    public String ether_absent;
}
