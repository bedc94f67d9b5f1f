package orvane.str.diskarray;

public class InitHGPortList {
    public byte[] hg = new byte[128];
}
