package kxtest;

/** Direct access to the statistics converters that no native calls (test-only library). */
public final class PerfProbe {
    static {
        System.load(System.getProperty("kx.probe"));
    }

    private PerfProbe() {}

    /** The statistics record filled from obj; status[0] gets the converter's result, status[1] 1 when it left an exception pending. */
    public static native byte[] readStatistics(Object obj, int[] status);
}
