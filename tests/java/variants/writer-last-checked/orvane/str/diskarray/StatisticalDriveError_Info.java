package orvane.str.diskarray;

/** Lacks drive_port_limit3, the last field whose failure drops the object. */
public class StatisticalDriveError_Info {
    public int drv_on_time;
    public int had_rec_limit;
    public int had_urec_limit;
    public int med_rec_limit;
    public int med_urec_limit;
    public int rw_rec_limit;
    public int rw_urec_limit;
    public int drive_rec_limit;
    public int drive_urec_limit;
    public int crhd_rec_limit;
    public int crhd_urec_limit;
    public int scsi_rec_limit;
    public int scsi_urec_limit;
    public int ov_corerr_limit;
    public int ov_ucorerr_limit;
    public int[] drive_port_limit1;
    public int[] drive_port_limit2;
    public int[] drive_port_limit3_absent;
}
