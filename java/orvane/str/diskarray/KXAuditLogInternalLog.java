package orvane.str.diskarray;

public class KXAuditLogInternalLog {
    public int internallog_used;
}
