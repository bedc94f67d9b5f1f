package orvane.str.diskarray;

/** Lacks serial, its last unchecked field. */
public class DiskDriveInformation {
    public String vendor;
    public String product;
    public String revision;
    public int lastLBA;
    public String drive_capacity;
    public int add_info_index;
    public String serial_absent;
    public int unit_type;
    public int unit_type_sub_code;
    public int drive_rotation;
}
