package orvane.str.diskarray;

/** Lacks lu, the last field whose failure drops the object. */
public class PrefetchTuning {
    public int support_index;
    public int valid_index;
    public int set_mode;
    public int setting_range;
    public int multi_stream_read;
    public int multi_stream_write;
    public int seq_count;
    public int next_pre_mode;
    public int pre_std;
    public PrefetchTuningLURange[] lu_range;
    public PrefetchLUInfo[] lu_absent;
}
