package orvane.str.diskarray;

public class StatisticalDriveDma {
    public int dma_retry;
    public int dma_path_retry;
    public int drr_retry;
    public StatisticalDriveDma_Error[] error;
}
