package orvane.str.diskarray;

public class KXiSCSICHAPUserCTLInfo {
    public KXiSCSICHAPUserPortInfo[] port;
}
