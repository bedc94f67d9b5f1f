package orvane.str.diskarray;

/** Lacks limit_drive_port, the last field whose failure drops the object. */
public class StatisticalDriveError_LimitInfo {
    public int limit_had_rec;
    public int limit_had_urec;
    public int limit_med_rec;
    public int limit_med_urec;
    public int limit_rw_rec;
    public int limit_rw_urec;
    public int limit_drive_rec;
    public int limit_drive_urec;
    public int limit_crhd_rec;
    public int limit_crhd_urec;
    public int limit_scsi_rec;
    public int limit_scsi_urec;
    public int limit_ov_corerr;
    public int limit_ov_ucorerr;
    public int limit_drive_port_absent;
}
