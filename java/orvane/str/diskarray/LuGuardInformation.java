package orvane.str.diskarray;

public class LuGuardInformation {
    public int option;
    public int expirationlock;
    public LuGuard[] lu;
}
