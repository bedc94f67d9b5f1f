package orvane.str.diskarray;

/** Lacks fibre, the last field whose failure drops the object. */
public class WZEnhancedOption {
    public int common;
    public int scsi;
    public int fibre_absent;
}
