package orvane.str.diskarray;

public class SpareDisk {
    public int unit_no;
    public int hdu_no;
}
