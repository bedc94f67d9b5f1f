package orvane.str.diskarray;

/** Lacks n_port_id, its last unchecked field. */
public class FibreInformationPermission {
    public String node_name;
    public String port_name;
    public String n_port_id_absent;
    public byte[] lun_security_bitmap = new byte[256];
}
