package orvane.str.diskarray;

/** Lacks reassign_thres, the last field whose failure drops the object. */
public class SmartInfo {
    public int smart_valid;
    public int reassign_thres_absent;
}
