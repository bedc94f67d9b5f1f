package orvane.str.diskarray;

public class OwnUserPermission {
    public int[] operation_auth;
    public int role;
    public int[] original_operation_auth;
}
