package orvane.str.diskarray;

public class ENCMicroRevision {
    public ENCRevision bas_rev;
    public ENCRevision ext_rev;
    public ENCRevision[] ext_rev_plus;
}
