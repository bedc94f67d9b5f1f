package orvane.str.diskarray;

/** Lacks server_used, the last field whose failure drops the object. */
public class KXAuditLogSyslogServer {
    public int server_used_absent;
    public String ip_address;
}
