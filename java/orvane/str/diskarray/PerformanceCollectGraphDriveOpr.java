package orvane.str.diskarray;

public class PerformanceCollectGraphDriveOpr {
    public int valid;
    public short operate_rate;
    public int tag_count;
}
