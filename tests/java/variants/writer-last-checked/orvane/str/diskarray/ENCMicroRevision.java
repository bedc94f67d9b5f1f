package orvane.str.diskarray;

/** Lacks ext_rev_plus, the last field whose failure drops the object. */
public class ENCMicroRevision {
    public ENCRevision bas_rev;
    public ENCRevision ext_rev;
    public ENCRevision[] ext_rev_plus_absent;
}
