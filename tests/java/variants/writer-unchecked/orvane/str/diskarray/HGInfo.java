package orvane.str.diskarray;

/** Lacks hgname, its last unchecked field. */
public class HGInfo {
    public int valid;
    public String hgname_absent;
}
