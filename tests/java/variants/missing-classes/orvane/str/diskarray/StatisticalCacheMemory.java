package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalCacheMemory {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int battery;
    public int threshold;
    public int[] correct_err;
    public int[][] segment;
}
