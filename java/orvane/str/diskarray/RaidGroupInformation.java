package orvane.str.diskarray;

public class RaidGroupInformation {
    public int rg_count;
    public RgDetail[] rg;
    public RgDriveInfo[][] rgdrv;
}
