package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class LuMigrationPairInfo {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int pvol_lun;
    public int pvol_rg_num;
    public int svol_lun;
    public int svol_rg_num;
    public int copying_pace;
    public int owner_id;
    public int migration_state;
    public int percent;
    public int migration_error;
}
