package orvane.str.diskarray;

/** Lacks unit_type_sub_code, the last field whose failure drops the object. */
public class RaidGroup {
    public int rgnum;
    public int level;
    public int port;
    public int row;
    public int width;
    public int depth;
    public int minimum_capa;
    public int lastLBASet;
    public int lastLBA;
    public int rest_h;
    public int rest;
    public int lumaxcapa;
    public int unit_type;
    public int unit_type_sub_code_absent;
}
