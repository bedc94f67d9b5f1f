package orvane.str.diskarray;

public class WZTargetConfig {
    public int single;
    public byte[] multi = new byte[16];
    public WZTargetLunList[] mapping;
}
