package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class PrefetchTuningLURange {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int multi_stream_read;
    public int multi_stream_write;
    public int next_pre_mode;
    public int pre_std;
}
