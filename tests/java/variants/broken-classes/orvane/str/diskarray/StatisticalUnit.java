package orvane.str.diskarray;

public class StatisticalUnit {
    public int battery;
    public int ps;
    public int fan;
    public int upst;
}
