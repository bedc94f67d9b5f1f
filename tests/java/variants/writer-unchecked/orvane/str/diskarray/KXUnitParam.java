package orvane.str.diskarray;

/** Lacks serial, its last unchecked field. */
public class KXUnitParam {
    public String unit_name;
    public String group_name;
    public int connect_type;
    public int kx_type;
    public int device_type;
    public int unit_conf;
    public int alert;
    public String ctl0;
    public String ctl1;
    public String serial_absent;
}
