package orvane.str.diskarray;

/** Has no constructor without arguments. */
public class KXLabel {
    public String oldlabel, newlabel;

    public KXLabel(String oldlabel) {
        this.oldlabel = oldlabel;
    }
}
