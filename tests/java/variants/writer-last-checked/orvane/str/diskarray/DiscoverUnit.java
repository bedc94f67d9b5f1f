package orvane.str.diskarray;

/** Lacks ctlno, the last field whose failure drops the object. */
public class DiscoverUnit {
    public int connect_type;
    public String ip_dev;
    public int kx_type;
    public int device_type;
    public int unit_conf;
    public int ctlno_absent;
    public String serial;
}
