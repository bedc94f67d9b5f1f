package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class FibreInformation {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int lun_security;
    public int port_valid;
    public int[] topology;
    public int[] topology_ref;
    public FibreInformationPort[] port;
    public FibreInformationSfc[] sfc;
    public FibreInformationSecurity[] security;
    public String product_number;
}
