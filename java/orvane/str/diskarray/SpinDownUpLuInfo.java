package orvane.str.diskarray;

public class SpinDownUpLuInfo {
    public int lun;
    public int lu_power_saving;
    public int lu_power_saving_detail;
}
