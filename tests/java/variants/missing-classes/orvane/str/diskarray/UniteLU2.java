package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class UniteLU2 {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int unite_info;
    public int status;
    public int capacity;
    public int child_lu_count;
    public int next_lun;
}
