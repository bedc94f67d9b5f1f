package orvane.str.diskarray;

public class PoolCtlCapa {
    public int pool_enable_count;
    public PoolDetailCapa[] pool;
}
