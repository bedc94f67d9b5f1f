package orvane.str.diskarray;

public class PerformanceOutputSpecifyInfo {
    public byte[] port = new byte[4];
    public byte[] rg = new byte[90];
    public byte[] lu = new byte[4096];
    public int cache;
    public byte[] backend = new byte[8];
    public byte[][] drive = new byte[30][15];
    public int processor;
    public byte[][] drive_opr_rate = new byte[30][15];
}
