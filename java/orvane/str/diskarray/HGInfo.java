package orvane.str.diskarray;

public class HGInfo {
    public int valid;
    public String hgname;
}
