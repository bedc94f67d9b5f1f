package orvane.str.diskarray;

public class PairCreateTime {
    public int year;
    public int month;
    public int day;
    public int hour;
    public int minute;
    public int second;
}
