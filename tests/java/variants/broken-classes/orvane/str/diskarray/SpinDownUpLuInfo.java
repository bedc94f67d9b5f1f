package orvane.str.diskarray;

/** Holds lun as a long, not an int. */
public class SpinDownUpLuInfo {
    public long lun;
    public int lu_power_saving, lu_power_saving_detail;
}
