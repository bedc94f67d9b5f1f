package orvane.str.diskarray;

/** Lacks rgdrv, the last field whose failure drops the object. */
public class RaidGroupInformation {
    public int rg_count;
    public RgDetail[] rg;
    public RgDriveInfo[][] rgdrv_absent;
}
