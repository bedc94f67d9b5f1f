package orvane.str.diskarray;

/** Lacks unit_no, the last field whose failure drops the object. */
public class DriveReconstructInformation {
    public int valid;
    public int status_code;
    public int progress_ratio;
    public int hdu_no;
    public int unit_no_absent;
}
