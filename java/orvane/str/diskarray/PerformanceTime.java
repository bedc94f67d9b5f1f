package orvane.str.diskarray;

public class PerformanceTime {
    public int year;
    public int month;
    public int day;
    public int hour;
    public int minute;
    public int second;
}
