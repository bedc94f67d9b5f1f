package orvane.str.diskarray;

/** Lacks enc, the last field whose failure drops the object. */
public class ENCCTUStatus {
    public ENCStatus[] enc_absent;
}
