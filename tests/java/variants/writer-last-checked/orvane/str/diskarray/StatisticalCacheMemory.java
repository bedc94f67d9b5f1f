package orvane.str.diskarray;

/** Lacks segment, the last field whose failure drops the object. */
public class StatisticalCacheMemory {
    public int battery;
    public int threshold;
    public int[] correct_err;
    public int[][] segment_absent;
}
