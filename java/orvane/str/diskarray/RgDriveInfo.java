package orvane.str.diskarray;

public class RgDriveInfo {
    public int valid_index;
    public int next_unit_no;
    public int next_hdu_no;
    public int paritygroup_no;
}
