package orvane.str.diskarray;

public class TargetLunList {
    public byte[] lun = new byte[128];
}
