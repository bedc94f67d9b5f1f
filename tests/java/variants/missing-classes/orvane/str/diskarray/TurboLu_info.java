package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class TurboLu_info {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int current_status;
    public int current_assign;
    public int current_lun;
    public int reserve_assign;
    public int reserve_lun;
}
