package orvane.str.diskarray;

/** Lacks port_name, its last unchecked field. */
public class WWNPermInfo {
    public String node_name;
    public String port_name_absent;
    public byte[] lun_security_bitmap = new byte[256];
}
