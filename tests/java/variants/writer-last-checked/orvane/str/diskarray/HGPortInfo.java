package orvane.str.diskarray;

/** Lacks hg, the last field whose failure drops the object. */
public class HGPortInfo {
    public int security;
    public HGInfo[] hg_absent;
}
