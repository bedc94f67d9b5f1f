package orvane.str.diskarray;

/** Lacks rev_ses, its last unchecked field. */
public class ENCRevision {
    public int valid_index;
    public String rev_main;
    public String rev_boot;
    public String rev_ectl;
    public String rev_rtr;
    public String rev_ses_absent;
}
