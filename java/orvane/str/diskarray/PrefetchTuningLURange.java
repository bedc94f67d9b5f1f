package orvane.str.diskarray;

public class PrefetchTuningLURange {
    public int multi_stream_read;
    public int multi_stream_write;
    public int next_pre_mode;
    public int pre_std;
}
