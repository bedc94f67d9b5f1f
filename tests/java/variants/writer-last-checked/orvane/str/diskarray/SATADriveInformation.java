package orvane.str.diskarray;

/** Lacks smart_info, the last field whose failure drops the object. */
public class SATADriveInformation {
    public SweepInfo sweep_info;
    public DriveFlashInfo flash_info;
    public SmartInfo smart_info_absent;
}
