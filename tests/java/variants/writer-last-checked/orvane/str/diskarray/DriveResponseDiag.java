package orvane.str.diskarray;

/** Lacks autodiag_threshold, the last field whose failure drops the object. */
public class DriveResponseDiag {
    public int valid;
    public int set_mode;
    public int mode;
    public int threshold;
    public int sata_diag;
    public int autodiag_threshold_absent;
}
