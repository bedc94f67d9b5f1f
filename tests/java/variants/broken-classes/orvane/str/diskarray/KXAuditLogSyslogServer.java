package orvane.str.diskarray;

/** Lacks ip_address. */
public class KXAuditLogSyslogServer {
    public int server_used;
}
