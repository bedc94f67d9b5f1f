package orvane.str.diskarray;

public class LuMigrationReserveLUInfo {
    public int lun;
    public int lu_state;
}
