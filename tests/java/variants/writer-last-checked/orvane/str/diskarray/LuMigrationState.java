package orvane.str.diskarray;

/** Lacks lun, the last field whose failure drops the object. */
public class LuMigrationState {
    public int[] lun_absent;
}
