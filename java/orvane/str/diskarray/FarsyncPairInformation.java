package orvane.str.diskarray;

public class FarsyncPairInformation {
    public int option;
    public int pair_count;
    public FarsyncLuInfo[] lu;
}
