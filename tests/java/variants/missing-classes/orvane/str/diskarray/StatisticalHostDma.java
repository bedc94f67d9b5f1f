package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalHostDma {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int err_rtry;
    public int dma_errcnt;
    public int bus_errcnt;
    public int la_errcnt;
}
