package orvane.str.diskarray;

public class FormatList {
    public byte[] lu = new byte[2048];
}
