package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class LuGuard {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int lu_valid;
    public int capacity;
    public int access_level_valid;
    public int access_level_status;
    public int access_level;
    public int svol_disable;
    public int access_inhibit_mode;
    public int access_attr;
    public int changeable_attr;
    public int retention_term;
}
