package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class WWNHostInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public String node_name;
    public String port_name;
    public int hostflag;
    public int hg_number;
    public String wname;
}
