package orvane.str.diskarray;

/** Lacks pool, the last field whose failure drops the object. */
public class PoolCtlCapa {
    public int pool_enable_count;
    public PoolDetailCapa[] pool_absent;
}
