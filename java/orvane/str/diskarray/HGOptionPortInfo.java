package orvane.str.diskarray;

public class HGOptionPortInfo {
    public int security;
    public int hg_tg_max_count;
    public HGOptionInfo[] hg;
}
