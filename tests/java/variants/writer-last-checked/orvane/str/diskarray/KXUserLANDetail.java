package orvane.str.diskarray;

/** Lacks set_linkspeed_duplex, the last field whose failure drops the object. */
public class KXUserLANDetail {
    public int support_index;
    public int valid_index;
    public int setting_result;
    public int dhcp;
    public String current_ipaddress;
    public String current_subnet;
    public String current_gateway;
    public int current_linkspeed_duplex;
    public String set_ipaddress;
    public String set_subnet;
    public String set_gateway;
    public int set_linkspeed_duplex_absent;
}
