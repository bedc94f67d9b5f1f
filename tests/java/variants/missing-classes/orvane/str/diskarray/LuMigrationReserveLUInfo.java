package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class LuMigrationReserveLUInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int lun;
    public int lu_state;
}
