package orvane.str.diskarray;

public class StatisticalCacheMemory {
    public int battery;
    public int threshold;
    public int[] correct_err;
    public int[][] segment;
}
