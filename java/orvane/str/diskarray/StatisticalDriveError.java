package orvane.str.diskarray;

public class StatisticalDriveError {
    public StatisticalDriveError_LimitInfo limit;
    public StatisticalDriveError_Info[][] drive;
}
