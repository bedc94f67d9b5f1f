package orvane.str.diskarray;

/** Lacks original_operation_auth, the last field whose failure drops the object. */
public class OwnUserPermission {
    public int[] operation_auth;
    public int role;
    public int[] original_operation_auth_absent;
}
