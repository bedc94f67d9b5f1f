package orvane.str.diskarray;

/** Lacks enc, the last field whose failure drops the object. */
public class ENCUnitStatus {
    public ENCStatus[] enc_absent;
}
