package orvane.str.diskarray;

/** Lacks pre_std, the last field whose failure drops the object. */
public class PrefetchTuningLURange {
    public int multi_stream_read;
    public int multi_stream_write;
    public int next_pre_mode;
    public int pre_std_absent;
}
