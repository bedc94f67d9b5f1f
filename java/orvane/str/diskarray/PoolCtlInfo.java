package orvane.str.diskarray;

public class PoolCtlInfo {
    public int pool_enable_count;
    public PoolDetailInfo[] pool;
}
