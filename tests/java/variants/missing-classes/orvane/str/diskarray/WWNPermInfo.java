package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class WWNPermInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public String node_name;
    public String port_name;
    public byte[] lun_security_bitmap = new byte[256];
}
