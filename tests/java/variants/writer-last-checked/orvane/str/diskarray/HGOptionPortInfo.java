package orvane.str.diskarray;

/** Lacks hg, the last field whose failure drops the object. */
public class HGOptionPortInfo {
    public int security;
    public int hg_tg_max_count;
    public HGOptionInfo[] hg_absent;
}
