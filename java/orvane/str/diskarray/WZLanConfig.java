package orvane.str.diskarray;

public class WZLanConfig {
    public int lan_connect;
    public int dhcp_mode;
    public String ip_address;
    public String subnet;
    public String gateway;
    public String ether;
}
