package orvane.str.diskarray;

public class QuickFormatList {
    public byte[] lu = new byte[4096];
}
