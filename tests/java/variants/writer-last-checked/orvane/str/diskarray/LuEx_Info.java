package orvane.str.diskarray;

/** Lacks tag_count, the last field whose failure drops the object. */
public class LuEx_Info {
    public int valid;
    public int support;
    public LuEx_CommandInfo read_hit;
    public LuEx_CommandInfo write_hit;
    public LuEx_CommandInfo read_miss;
    public LuEx_CommandInfo write_miss;
    public LuEx_CommandInfo read_job;
    public LuEx_CommandInfo write_job;
    public int tag_count_absent;
}
