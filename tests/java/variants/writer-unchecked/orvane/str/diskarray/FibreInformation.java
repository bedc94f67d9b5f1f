package orvane.str.diskarray;

/** Lacks product_number, its last unchecked field. */
public class FibreInformation {
    public int lun_security;
    public int port_valid;
    public int[] topology;
    public int[] topology_ref;
    public FibreInformationPort[] port;
    public FibreInformationSfc[] sfc;
    public FibreInformationSecurity[] security;
    public String product_number_absent;
}
