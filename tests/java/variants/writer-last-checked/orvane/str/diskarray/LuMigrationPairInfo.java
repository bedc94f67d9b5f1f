package orvane.str.diskarray;

/** Lacks migration_error, the last field whose failure drops the object. */
public class LuMigrationPairInfo {
    public int pvol_lun;
    public int pvol_rg_num;
    public int svol_lun;
    public int svol_rg_num;
    public int copying_pace;
    public int owner_id;
    public int migration_state;
    public int percent;
    public int migration_error_absent;
}
