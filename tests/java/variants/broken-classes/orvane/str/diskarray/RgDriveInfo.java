package orvane.str.diskarray;

/** paritygroup_no has the wrong type. */
public class RgDriveInfo {
    public int valid_index, next_unit_no, next_hdu_no;
    public long paritygroup_no;
}
