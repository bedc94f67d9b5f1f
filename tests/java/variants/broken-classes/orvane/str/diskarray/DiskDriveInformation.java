package orvane.str.diskarray;

/** Lacks the int field lastLBA. */
public class DiskDriveInformation {
    public String vendor, product, revision, drive_capacity, serial;
    public int add_info_index, unit_type, unit_type_sub_code, drive_rotation;
}
