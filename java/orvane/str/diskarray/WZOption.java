package orvane.str.diskarray;

public class WZOption {
    public int common;
    public int scsi;
    public int fibre;
}
