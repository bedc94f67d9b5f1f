package orvane.str.diskarray;

/** Lacks drive_rotation, the last field whose failure drops the object. */
public class DiskDriveInformation {
    public String vendor;
    public String product;
    public String revision;
    public int lastLBA;
    public String drive_capacity;
    public int add_info_index;
    public String serial;
    public int unit_type;
    public int unit_type_sub_code;
    public int drive_rotation_absent;
}
