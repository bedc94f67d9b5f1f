package orvane.str.diskarray;

/** Lacks drvdetachmode, the last field whose failure drops the object. */
public class BootOption {
    public int support_index;
    public int valid_index;
    public int startup_attr;
    public int data_share;
    public int delay_time;
    public int drvdetachmode_absent;
    public String vendor;
    public String product;
    public String rom_micro;
    public String ram_micro;
}
