package orvane.str.diskarray;

public class LuMigrationInformation {
    public int option;
    public int reserve_lu_count;
    public int pair_lu_count;
    public LuMigrationReserveLUInfo[] reserve_lu;
    public LuMigrationPairInfo[] pair_lu;
}
