package orvane.str.diskarray;

/** valid has the wrong type. */
public class HGInfo {
    public long valid;
    public String hgname;
}
