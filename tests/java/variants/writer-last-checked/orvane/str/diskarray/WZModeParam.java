package orvane.str.diskarray;

/** Lacks failures, the last field whose failure drops the object. */
public class WZModeParam {
    public int striping;
    public int buzzer;
    public int lu_size_report;
    public int reset;
    public int failures_absent;
}
