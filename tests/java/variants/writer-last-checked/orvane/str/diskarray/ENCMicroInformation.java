package orvane.str.diskarray;

/** Lacks read_rev, the last field whose failure drops the object. */
public class ENCMicroInformation {
    public int kx_type;
    public int device_type;
    public int micro_type;
    public ENCMicroRevision read_rev_absent;
}
