package orvane.str.diskarray;

public class FibreInformationPermission {
    public String node_name;
    public String port_name;
    public String n_port_id;
    public byte[] lun_security_bitmap = new byte[256];
}
