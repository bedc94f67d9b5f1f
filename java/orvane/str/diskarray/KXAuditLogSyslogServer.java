package orvane.str.diskarray;

public class KXAuditLogSyslogServer {
    public int server_used;
    public String ip_address;
}
