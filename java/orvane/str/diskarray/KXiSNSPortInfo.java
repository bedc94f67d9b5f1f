package orvane.str.diskarray;

public class KXiSNSPortInfo {
    public int port_valid;
    public int set_valid;
    public int isns_use;
    public String ip_address;
    public int port_num;
}
