package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXiSNSPortInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int port_valid;
    public int set_valid;
    public int isns_use;
    public String ip_address;
    public int port_num;
}
