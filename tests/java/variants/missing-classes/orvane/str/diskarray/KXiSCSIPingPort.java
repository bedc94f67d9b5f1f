package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXiSCSIPingPort {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int port_valid;
    public int request_valid;
    public String ip_address;
    public int status;
    public int execute_count;
    public int success_count;
    public int schedule_count;
}
