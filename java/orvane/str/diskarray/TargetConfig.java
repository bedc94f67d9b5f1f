package orvane.str.diskarray;

public class TargetConfig {
    public int single;
    public byte[] multi = new byte[16];
    public TargetLunList[] mapping;
}
