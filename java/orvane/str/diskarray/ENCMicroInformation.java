package orvane.str.diskarray;

public class ENCMicroInformation {
    public int kx_type;
    public int device_type;
    public int micro_type;
    public ENCMicroRevision read_rev;
}
