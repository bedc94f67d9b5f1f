package orvane.str.diskarray;

public class MirrexInformation {
    public int option;
    public int pair_count;
    public MirrexLuInfo[] lu;
}
