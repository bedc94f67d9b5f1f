package orvane.str.diskarray;

/** Lacks pool, the last field whose failure drops the object. */
public class PoolCtlInfo {
    public int pool_enable_count;
    public PoolDetailInfo[] pool_absent;
}
