package orvane.str.diskarray;

/** Lacks keep_alive_time. */
public class AccountAdditionalInfo {
    public int keep_alive;
}
