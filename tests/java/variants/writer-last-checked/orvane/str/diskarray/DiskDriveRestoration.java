package orvane.str.diskarray;

/** Lacks no_copyback_allunit, the last field whose failure drops the object. */
public class DiskDriveRestoration {
    public int mode;
    public int restoration;
    public int dynamic_sparing;
    public int interval;
    public int unit_size;
    public int sparemode;
    public int no_copyback_allunit_absent;
}
