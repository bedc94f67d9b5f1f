package orvane.str.diskarray;

public class DriveFlashInfo {
    public int compare_mode;
    public int drv_flash_time;
    public int drv_flash_io_count;
}
