package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class KXAuditLogSyslogServer {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int server_used;
    public String ip_address;
}
