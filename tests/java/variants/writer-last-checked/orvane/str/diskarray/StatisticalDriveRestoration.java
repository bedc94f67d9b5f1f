package orvane.str.diskarray;

/** Lacks system_cnt, the last field whose failure drops the object. */
public class StatisticalDriveRestoration {
    public int inter_cnt;
    public int back_cnt;
    public int system_cnt_absent;
}
