package orvane.str.diskarray;

public class PerformanceOutputGraphInfo {
    public PerformanceAll preinfo0;
    public PerformanceAll afterinfo0;
    public PerformanceAll preinfo1;
    public PerformanceAll afterinfo1;
}
