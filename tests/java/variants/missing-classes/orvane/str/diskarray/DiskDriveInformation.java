package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class DiskDriveInformation {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public String vendor;
    public String product;
    public String revision;
    public int lastLBA;
    public String drive_capacity;
    public int add_info_index;
    public String serial;
    public int unit_type;
    public int unit_type_sub_code;
    public int drive_rotation;
}
