package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class LuEx_Info {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int valid;
    public int support;
    public LuEx_CommandInfo read_hit;
    public LuEx_CommandInfo write_hit;
    public LuEx_CommandInfo read_miss;
    public LuEx_CommandInfo write_miss;
    public LuEx_CommandInfo read_job;
    public LuEx_CommandInfo write_job;
    public int tag_count;
}
