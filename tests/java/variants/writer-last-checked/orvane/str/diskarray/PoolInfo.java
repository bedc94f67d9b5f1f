package orvane.str.diskarray;

/** Lacks ctl, the last field whose failure drops the object. */
public class PoolInfo {
    public int option;
    public PoolCtlInfo[] ctl_absent;
}
