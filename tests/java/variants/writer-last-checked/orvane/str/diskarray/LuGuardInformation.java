package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class LuGuardInformation {
    public int option;
    public int expirationlock;
    public LuGuard[] lu_absent;
}
