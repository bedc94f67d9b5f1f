package orvane.str.diskarray;

public class KXLabel {
    public String oldlabel;
    public String newlabel;
}
