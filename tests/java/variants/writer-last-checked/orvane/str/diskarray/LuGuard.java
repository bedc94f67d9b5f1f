package orvane.str.diskarray;

/** Lacks retention_term, the last field whose failure drops the object. */
public class LuGuard {
    public int lu_valid;
    public int capacity;
    public int access_level_valid;
    public int access_level_status;
    public int access_level;
    public int svol_disable;
    public int access_inhibit_mode;
    public int access_attr;
    public int changeable_attr;
    public int retention_term_absent;
}
