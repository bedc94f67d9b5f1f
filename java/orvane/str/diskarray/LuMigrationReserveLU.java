package orvane.str.diskarray;

public class LuMigrationReserveLU {
    public byte[] reserve_lu = new byte[4096];
}
