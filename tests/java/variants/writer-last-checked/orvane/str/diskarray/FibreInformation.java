package orvane.str.diskarray;

/** Lacks security, the last field whose failure drops the object. */
public class FibreInformation {
    public int lun_security;
    public int port_valid;
    public int[] topology;
    public int[] topology_ref;
    public FibreInformationPort[] port;
    public FibreInformationSfc[] sfc;
    public FibreInformationSecurity[] security_absent;
    public String product_number;
}
