package orvane.str.diskarray;

public class WZEnhancedOption {
    public int common;
    public int scsi;
    public int fibre;
}
