package orvane.str.diskarray;

public class KXiSCSIPing {
    public KXiSCSIPingCTL[] ctl;
}
