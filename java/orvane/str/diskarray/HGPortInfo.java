package orvane.str.diskarray;

public class HGPortInfo {
    public int security;
    public HGInfo[] hg;
}
