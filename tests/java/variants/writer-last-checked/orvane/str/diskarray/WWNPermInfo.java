package orvane.str.diskarray;

/** Lacks lun_security_bitmap, the last field whose failure drops the object. */
public class WWNPermInfo {
    public String node_name;
    public String port_name;
    public byte[] lun_security_bitmap_absent = new byte[256];
}
