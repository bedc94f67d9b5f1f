package orvane.str.diskarray;

/** Lacks second, the last field whose failure drops the object. */
public class KXApiTime {
    public int hour;
    public int minute;
    public int second_absent;
}
