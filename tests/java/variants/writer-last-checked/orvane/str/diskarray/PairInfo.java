package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class PairInfo {
    public int option;
    public PoolCtlCapa[] ctl;
    public int pair_count;
    public PairLUInfo[] lu_absent;
}
