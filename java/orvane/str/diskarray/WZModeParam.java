package orvane.str.diskarray;

public class WZModeParam {
    public int striping;
    public int buzzer;
    public int lu_size_report;
    public int reset;
    public int failures;
}
