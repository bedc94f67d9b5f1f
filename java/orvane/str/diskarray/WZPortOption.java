package orvane.str.diskarray;

public class WZPortOption {
    public int common;
    public int scsi;
    public int fibre;
}
