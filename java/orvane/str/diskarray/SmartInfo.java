package orvane.str.diskarray;

public class SmartInfo {
    public int smart_valid;
    public int reassign_thres;
}
