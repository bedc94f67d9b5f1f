package orvane.str.diskarray;

public class KXiSNSCTLInfo {
    public KXiSNSPortInfo[] port;
}
