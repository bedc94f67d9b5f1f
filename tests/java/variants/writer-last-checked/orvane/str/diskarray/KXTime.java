package orvane.str.diskarray;

/** Lacks tm_isdst, the last field whose failure drops the object. */
public class KXTime {
    public int tm_sec;
    public int tm_min;
    public int tm_hour;
    public int tm_mday;
    public int tm_mon;
    public int tm_year;
    public int tm_wday;
    public int tm_yday;
    public int tm_isdst_absent;
}
