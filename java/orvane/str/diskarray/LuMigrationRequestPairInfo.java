package orvane.str.diskarray;

public class LuMigrationRequestPairInfo {
    public int pvol_lun;
    public int svol_lun;
    public int copying_pace;
}
