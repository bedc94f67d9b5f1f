package orvane.str.diskarray;

/** Lacks its copying pace. */
public class LuMigrationRequestPairInfo {
    public int pvol_lun;
    public int svol_lun;
}
