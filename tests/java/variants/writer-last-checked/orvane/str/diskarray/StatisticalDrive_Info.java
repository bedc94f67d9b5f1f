package orvane.str.diskarray;

/** Lacks link_failre, the last field whose failure drops the object. */
public class StatisticalDrive_Info {
    public int d_had_rec;
    public int d_had_urec;
    public int d_med_rec;
    public int d_med_urec;
    public int d_rw_rec;
    public int d_rw_urec;
    public int d_drive_rec;
    public int d_drive_urec;
    public int d_crhd_rec;
    public int d_crhd_urec;
    public int d_scsi_rec;
    public int d_scsi_urec;
    public int ov_correct_err;
    public int ov_uncorrect_err;
    public int ov_restor_cnt;
    public int[] drv_port_err;
    public int[] link_failre_absent;
}
