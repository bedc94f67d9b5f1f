package orvane.str.diskarray;

/** Lacks backup_power, the last field whose failure drops the object. */
public class StatisticalUnit {
    public int battery;
    public int ps;
    public int fan;
    public int upst;
    public int backup_power_absent;
}
