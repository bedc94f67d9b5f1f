package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXiSCSIPortPortInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int port_valid;
    public int set_valid;
    public String ip_address;
    public String subnet;
    public String gateway;
    public int port_num;
    public String ether;
    public int keep_alive_timer;
    public int mtu;
    public int set_status;
}
