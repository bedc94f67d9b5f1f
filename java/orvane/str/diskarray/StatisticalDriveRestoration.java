package orvane.str.diskarray;

public class StatisticalDriveRestoration {
    public int inter_cnt;
    public int back_cnt;
    public int system_cnt;
}
