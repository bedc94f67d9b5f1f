package orvane.str.diskarray;

/** Lacks hdu_no. */
public class CreateRgDrive {
    public int unit_no;
}
