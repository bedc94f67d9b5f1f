package orvane.str.diskarray;

public class KXAuditLogSyslogServerInfo {
    public int serverall_used;
    public KXAuditLogSyslogServer[] server;
}
