package orvane.str.diskarray;

public class StatisticalDrive {
    public int err_rtry;
    public StatisticalDrive_Info[][] drive;
}
