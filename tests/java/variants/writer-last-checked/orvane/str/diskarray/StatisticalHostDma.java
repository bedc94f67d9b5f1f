package orvane.str.diskarray;

/** Lacks la_errcnt, the last field whose failure drops the object. */
public class StatisticalHostDma {
    public int err_rtry;
    public int dma_errcnt;
    public int bus_errcnt;
    public int la_errcnt_absent;
}
