package orvane.str.diskarray;

public class LuMigrationState {
    public int[] lun;
}
