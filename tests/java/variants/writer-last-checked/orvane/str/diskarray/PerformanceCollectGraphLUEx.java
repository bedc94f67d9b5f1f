package orvane.str.diskarray;

/** Lacks tag_count, the last field whose failure drops the object. */
public class PerformanceCollectGraphLUEx {
    public int valid;
    public int tag_count_absent;
}
