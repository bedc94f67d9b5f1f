package orvane.str.diskarray;

public class HGConfig {
    public String hgname;
}
