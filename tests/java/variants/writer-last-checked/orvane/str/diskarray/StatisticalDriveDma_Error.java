package orvane.str.diskarray;

/** Lacks la_error, the last field whose failure drops the object. */
public class StatisticalDriveDma_Error {
    public int dma_error;
    public int drr_error;
    public int bus_error;
    public int la_error_absent;
}
