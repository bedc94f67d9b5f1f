package orvane.str.diskarray;

/** Counts its instances; the constructor of instance `failAt` throws. */
public class LuGuard {
    public static int made;
    public static int failAt = Integer.MAX_VALUE;

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

    public LuGuard() {
        if (++made == failAt) throw new IllegalStateException("LU " + made);
    }
}
