package orvane.str.diskarray;

/** Lacks link_separation, the last field whose failure drops the object. */
public class WZInquiry {
    public int command_que;
    public int ansi_version;
    public int cache_mode;
    public String vendor;
    public String product;
    public String rom_micro;
    public String ram_micro;
    public String web_title;
    public int link_separation_absent;
}
