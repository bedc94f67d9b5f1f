package orvane.str.diskarray;

/** Lacks paritygroup_no, the last field whose failure drops the object. */
public class RgDriveInfo {
    public int valid_index;
    public int next_unit_no;
    public int next_hdu_no;
    public int paritygroup_no_absent;
}
