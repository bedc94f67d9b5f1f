package orvane.str.diskarray;

public class RequestLuMigration {
    public int request_pair_count;
    public int owner_id;
    public LuMigrationRequestPairInfo[] lu;
}
