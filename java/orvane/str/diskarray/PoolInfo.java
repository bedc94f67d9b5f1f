package orvane.str.diskarray;

public class PoolInfo {
    public int option;
    public PoolCtlInfo[] ctl;
}
