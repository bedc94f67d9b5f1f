package orvane.str.diskarray;

/** Lacks drv_state. */
public class DiskDrive {
    public int port_no, row_no, mount, attribute, spare_of_disk_port, spare_of_disk_row;
}
