package orvane.str.diskarray;

public class ENCCTUStatus {
    public ENCStatus[] enc;
}
