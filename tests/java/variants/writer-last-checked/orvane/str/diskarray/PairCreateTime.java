package orvane.str.diskarray;

/** Lacks second, the last field whose failure drops the object. */
public class PairCreateTime {
    public int year;
    public int month;
    public int day;
    public int hour;
    public int minute;
    public int second_absent;
}
