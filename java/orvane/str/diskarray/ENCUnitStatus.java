package orvane.str.diskarray;

public class ENCUnitStatus {
    public ENCStatus[] enc;
}
