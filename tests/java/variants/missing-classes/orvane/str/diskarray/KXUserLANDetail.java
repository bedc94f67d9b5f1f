package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXUserLANDetail {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

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
    public int set_linkspeed_duplex;
}
