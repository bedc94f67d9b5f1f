package orvane.str.diskarray;

public class DeleteHGPortList {
    public byte[] hg = new byte[128];
}
