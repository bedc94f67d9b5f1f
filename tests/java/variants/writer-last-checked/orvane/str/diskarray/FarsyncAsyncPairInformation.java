package orvane.str.diskarray;

/** Lacks ctg, the last field whose failure drops the object. */
public class FarsyncAsyncPairInformation {
    public int option;
    public int pair_count;
    public FarsyncAsyncLuInfo[] lu;
    public FarsyncAsyncCTGInfo[] ctg_absent;
}
