package orvane.str.diskarray;

public class CreateRgDrive {
    public int unit_no;
    public int hdu_no;
}
