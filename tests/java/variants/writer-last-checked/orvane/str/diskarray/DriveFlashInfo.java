package orvane.str.diskarray;

/** Lacks drv_flash_io_count, the last field whose failure drops the object. */
public class DriveFlashInfo {
    public int compare_mode;
    public int drv_flash_time;
    public int drv_flash_io_count_absent;
}
