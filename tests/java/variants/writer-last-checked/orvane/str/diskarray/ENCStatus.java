package orvane.str.diskarray;

/** Lacks enc_rev, the last field whose failure drops the object. */
public class ENCStatus {
    public int status;
    public ENCRevision enc_rev_absent;
}
