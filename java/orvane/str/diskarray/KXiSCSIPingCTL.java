package orvane.str.diskarray;

public class KXiSCSIPingCTL {
    public KXiSCSIPingPort[] port;
}
