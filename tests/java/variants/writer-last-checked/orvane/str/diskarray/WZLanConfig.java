package orvane.str.diskarray;

/** Lacks dhcp_mode, the last field whose failure drops the object. */
public class WZLanConfig {
    public int lan_connect;
    public int dhcp_mode_absent;
    public String ip_address;
    public String subnet;
    public String gateway;
    public String ether;
}
