package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalDriveError_Info {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

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
    public int[] drive_port_limit3;
}
