package orvane.str.diskarray;

/** Lacks drive, the last field whose failure drops the object. */
public class StatisticalDrive {
    public int err_rtry;
    public StatisticalDrive_Info[][] drive_absent;
}
