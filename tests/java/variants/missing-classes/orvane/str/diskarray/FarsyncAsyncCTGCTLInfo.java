package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class FarsyncAsyncCTGCTLInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int ctg_valid;
    public KXApiTime lapsed_time;
    public int remains_difference;
    public int rate_status;
    public int transfer_rate;
    public int prediction_status;
    public KXApiTime prediction_time;
}
