package orvane.str.diskarray;

/** Lacks lu_power_saving_detail, the last field whose failure drops the object. */
public class SpinDownUpLuInfo {
    public int lun;
    public int lu_power_saving;
    public int lu_power_saving_detail_absent;
}
