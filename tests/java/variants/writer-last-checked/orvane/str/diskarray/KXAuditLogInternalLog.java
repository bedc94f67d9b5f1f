package orvane.str.diskarray;

/** Lacks internallog_used, the last field whose failure drops the object. */
public class KXAuditLogInternalLog {
    public int internallog_used_absent;
}
