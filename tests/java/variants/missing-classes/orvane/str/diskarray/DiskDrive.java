package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class DiskDrive {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int port_no;
    public int row_no;
    public int mount;
    public int attribute;
    public int drv_state;
    public int spare_of_disk_port;
    public int spare_of_disk_row;
}
