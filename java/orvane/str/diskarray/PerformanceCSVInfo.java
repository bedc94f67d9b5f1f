package orvane.str.diskarray;

public class PerformanceCSVInfo {
    public PerformanceTime fromtime;
    public PerformanceTime totime;
    public int fromDataNum;
    public int toDataNum;
    public PerformanceCSVOutputOpt[] opt;
    public String dirname;
}
