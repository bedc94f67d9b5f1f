package orvane.str.diskarray;

public class KXAuditLogInit {
    public int set_valid;
}
