package orvane.str.diskarray;

public class KXApiTime {
    public int hour;
    public int minute;
    public int second;
}
