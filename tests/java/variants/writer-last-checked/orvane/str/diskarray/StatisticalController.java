package orvane.str.diskarray;

/** Lacks procnt_time, the last field whose failure drops the object. */
public class StatisticalController {
    public int power_on;
    public int reset;
    public int total_time;
    public int on_time;
    public int total_time_rap_cnt;
    public int total_time_rap_cnt_work;
    public int lu_change;
    public int[] procnt_time_absent;
}
