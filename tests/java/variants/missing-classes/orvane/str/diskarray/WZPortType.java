package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class WZPortType {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int port_type;
    public int[] port_mode;
    public WZPortOption[] port_option;
}
