package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class PerformanceCollectGraphVUPort {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public PerformanceCollectGraphVUBase control;
    public PerformanceCollectGraphVUBase data_transfer;
}
