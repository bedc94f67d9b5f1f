package orvane.str.diskarray;

/** Lacks reassign_thres. */
public class SmartInfo {
    public int smart_valid;
}
