package orvane.str.diskarray;

public class SpinDownUpInformation {
    public int option;
    public int rg_count;
    public SpinDownUpRGInfo[] rg;
    public int lu_count;
    public SpinDownUpLuInfo[] lu;
}
