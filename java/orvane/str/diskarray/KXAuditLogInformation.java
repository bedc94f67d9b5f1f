package orvane.str.diskarray;

public class KXAuditLogInformation {
    public int option;
    public int set_valid;
    public KXAuditLogSyslogServerInfo auditlog_server;
    public KXAuditLogInternalLog auditlog_internallog;
}
