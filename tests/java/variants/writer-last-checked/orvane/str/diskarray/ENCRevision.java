package orvane.str.diskarray;

/** Lacks valid_index, the last field whose failure drops the object. */
public class ENCRevision {
    public int valid_index_absent;
    public String rev_main;
    public String rev_boot;
    public String rev_ectl;
    public String rev_rtr;
    public String rev_ses;
}
