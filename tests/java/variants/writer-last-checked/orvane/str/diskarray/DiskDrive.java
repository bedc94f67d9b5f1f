package orvane.str.diskarray;

/** Lacks spare_of_disk_row, the last field whose failure drops the object. */
public class DiskDrive {
    public int port_no;
    public int row_no;
    public int mount;
    public int attribute;
    public int drv_state;
    public int spare_of_disk_port;
    public int spare_of_disk_row_absent;
}
