package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalController {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int power_on;
    public int reset;
    public int total_time;
    public int on_time;
    public int total_time_rap_cnt;
    public int total_time_rap_cnt_work;
    public int lu_change;
    public int[] procnt_time;
}
