package orvane.str.diskarray;

/** Lacks onlineVerify, the last field whose failure drops the object. */
public class SweepInfo {
    public int sweep_valid;
    public int interval_time;
    public int stop_time;
    public int unload;
    public int onlineVerify_absent;
}
