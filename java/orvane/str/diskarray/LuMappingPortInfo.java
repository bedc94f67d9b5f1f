package orvane.str.diskarray;

public class LuMappingPortInfo {
    public int security;
    public int hg_tg_max_count;
    public LuMappingHGInfo[] hg;
}
