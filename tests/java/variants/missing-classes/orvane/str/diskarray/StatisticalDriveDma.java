package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalDriveDma {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int dma_retry;
    public int dma_path_retry;
    public int drr_retry;
    public StatisticalDriveDma_Error[] error;
}
