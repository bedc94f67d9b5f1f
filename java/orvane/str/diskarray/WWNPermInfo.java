package orvane.str.diskarray;

public class WWNPermInfo {
    public String node_name;
    public String port_name;
    public byte[] lun_security_bitmap = new byte[256];
}
