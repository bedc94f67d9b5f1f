package orvane.str.diskarray;

/** Lacks ip_address, its last unchecked field. */
public class KXAuditLogSyslogServer {
    public int server_used;
    public String ip_address_absent;
}
