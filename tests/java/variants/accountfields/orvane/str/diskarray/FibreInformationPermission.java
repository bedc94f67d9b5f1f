package orvane.str.diskarray;

/** Leaves lun_security_bitmap null. */
public class FibreInformationPermission {
    public String node_name;
    public String port_name;
    public String n_port_id;
    public byte[] lun_security_bitmap;
}
