package orvane.str.diskarray;

public class PairInfo {
    public int option;
    public PoolCtlCapa[] ctl;
    public int pair_count;
    public PairLUInfo[] lu;
}
