package orvane.str.diskarray;

/** Lacks pair_lu, the last field whose failure drops the object. */
public class LuMigrationInformation {
    public int option;
    public int reserve_lu_count;
    public int pair_lu_count;
    public LuMigrationReserveLUInfo[] reserve_lu;
    public LuMigrationPairInfo[] pair_lu_absent;
}
