package orvane.str.diskarray;

/** Lacks drive, the last field whose failure drops the object. */
public class StatisticalDriveError {
    public StatisticalDriveError_LimitInfo limit;
    public StatisticalDriveError_Info[][] drive_absent;
}
