package orvane.str.diskarray;

public class DriveResponseDiag {
    public int valid;
    public int set_mode;
    public int mode;
    public int threshold;
    public int sata_diag;
    public int autodiag_threshold;
}
