package orvane.str.diskarray;

public class FarsyncAsyncPairInformation {
    public int option;
    public int pair_count;
    public FarsyncAsyncLuInfo[] lu;
    public FarsyncAsyncCTGInfo[] ctg;
}
