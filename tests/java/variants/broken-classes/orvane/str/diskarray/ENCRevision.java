package orvane.str.diskarray;

/** Lacks its last text. */
public class ENCRevision {
    public int valid_index;
    public String rev_main;
    public String rev_boot;
    public String rev_ectl;
    public String rev_rtr;
}
