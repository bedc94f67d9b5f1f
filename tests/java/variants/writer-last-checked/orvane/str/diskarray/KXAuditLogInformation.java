package orvane.str.diskarray;

/** Lacks auditlog_internallog, the last field whose failure drops the object. */
public class KXAuditLogInformation {
    public int option;
    public int set_valid;
    public KXAuditLogSyslogServerInfo auditlog_server;
    public KXAuditLogInternalLog auditlog_internallog_absent;
}
