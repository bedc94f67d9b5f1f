package orvane.str.diskarray;

/** Lacks keep_alive_time, the last field whose failure drops the object. */
public class AccountAdditionalInfo {
    public int keep_alive_time_absent;
}
