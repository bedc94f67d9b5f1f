package orvane.str.diskarray;

public class StatisticalDriveDma_Error {
    public int dma_error;
    public int drr_error;
    public int bus_error;
    public int la_error;
}
