package orvane.str.diskarray;

public class ParityCorrectionList {
    public int correction_mode;
    public int lu_count;
    public int[] lu = new int[4096];
}
