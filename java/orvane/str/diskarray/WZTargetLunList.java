package orvane.str.diskarray;

public class WZTargetLunList {
    public byte[] lun = new byte[128];
}
