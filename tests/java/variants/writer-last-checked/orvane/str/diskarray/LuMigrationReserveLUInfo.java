package orvane.str.diskarray;

/** Lacks lu_state, the last field whose failure drops the object. */
public class LuMigrationReserveLUInfo {
    public int lun;
    public int lu_state_absent;
}
