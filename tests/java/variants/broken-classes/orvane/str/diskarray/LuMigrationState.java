package orvane.str.diskarray;

/** Holds its states with another type. */
public class LuMigrationState {
    public long[] lun;
}
