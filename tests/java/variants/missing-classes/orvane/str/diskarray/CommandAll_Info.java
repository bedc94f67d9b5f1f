package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class CommandAll_Info {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int valid;
    public int support;
    public int read_count;
    public int write_count;
    public int read_cache;
    public int write_cache;
    public int read_size;
    public int write_size;
    public int online_verify_count;
}
