package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class WZLanConfig {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int lan_connect;
    public int dhcp_mode;
    public String ip_address;
    public String subnet;
    public String gateway;
    public String ether;
}
