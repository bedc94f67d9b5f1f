package orvane.str.diskarray;

public class ENCStatus {
    public int status;
    public ENCRevision enc_rev;
}
