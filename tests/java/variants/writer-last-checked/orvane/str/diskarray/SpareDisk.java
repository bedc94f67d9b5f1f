package orvane.str.diskarray;

/** Lacks hdu_no, the last field whose failure drops the object. */
public class SpareDisk {
    public int unit_no;
    public int hdu_no_absent;
}
