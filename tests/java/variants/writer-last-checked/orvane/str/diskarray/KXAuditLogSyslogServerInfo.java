package orvane.str.diskarray;

/** Lacks server, the last field whose failure drops the object. */
public class KXAuditLogSyslogServerInfo {
    public int serverall_used;
    public KXAuditLogSyslogServer[] server_absent;
}
