package orvane.str.diskarray;

/** Lacks error, the last field whose failure drops the object. */
public class StatisticalDriveDma {
    public int dma_retry;
    public int dma_path_retry;
    public int drr_retry;
    public StatisticalDriveDma_Error[] error_absent;
}
