package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class RgDriveInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int valid_index;
    public int next_unit_no;
    public int next_hdu_no;
    public int paritygroup_no;
}
