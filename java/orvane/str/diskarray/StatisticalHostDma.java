package orvane.str.diskarray;

public class StatisticalHostDma {
    public int err_rtry;
    public int dma_errcnt;
    public int bus_errcnt;
    public int la_errcnt;
}
