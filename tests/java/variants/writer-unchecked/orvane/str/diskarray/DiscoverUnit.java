package orvane.str.diskarray;

/** Lacks serial, its last unchecked field. */
public class DiscoverUnit {
    public int connect_type;
    public String ip_dev;
    public int kx_type;
    public int device_type;
    public int unit_conf;
    public int ctlno;
    public String serial_absent;
}
