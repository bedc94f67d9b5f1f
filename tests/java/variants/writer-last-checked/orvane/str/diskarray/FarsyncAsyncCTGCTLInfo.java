package orvane.str.diskarray;

/** Lacks prediction_time, the last field whose failure drops the object. */
public class FarsyncAsyncCTGCTLInfo {
    public int ctg_valid;
    public KXApiTime lapsed_time;
    public int remains_difference;
    public int rate_status;
    public int transfer_rate;
    public int prediction_status;
    public KXApiTime prediction_time_absent;
}
