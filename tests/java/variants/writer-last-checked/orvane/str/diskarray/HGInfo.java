package orvane.str.diskarray;

/** Lacks valid, the last field whose failure drops the object. */
public class HGInfo {
    public int valid_absent;
    public String hgname;
}
