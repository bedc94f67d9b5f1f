package orvane.str.diskarray;

/** Lacks web_title, its last unchecked field. */
public class WZInquiry {
    public int command_que;
    public int ansi_version;
    public int cache_mode;
    public String vendor;
    public String product;
    public String rom_micro;
    public String ram_micro;
    public String web_title_absent;
    public int link_separation;
}
