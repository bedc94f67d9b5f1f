package orvane.str.diskarray;

/** Lacks newlabel, its last unchecked field. */
public class KXLabel {
    public String oldlabel;
    public String newlabel_absent;
}
