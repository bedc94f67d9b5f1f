package orvane.str.diskarray;

/** Lacks tag_count, the last field whose failure drops the object. */
public class PerformanceCollectGraphDriveOpr {
    public int valid;
    public short operate_rate;
    public int tag_count_absent;
}
