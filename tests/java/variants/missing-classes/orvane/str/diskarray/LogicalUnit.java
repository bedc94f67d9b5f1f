package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class LogicalUnit {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public int luNumber;
    public int rgNumber;
    public int raid_level;
    public int staging;
    public int capacity;
    public int befor_lun;
    public int cachepart_no;
    public int pair_cachepart_valid;
    public int pair_cachepart_no;
    public int current_cachepart_no;
    public int stripe;
    public int lu_use_type;
    public int defaultCTL;
    public int currentCTL;
    public int status;
    public int hostblock;
    public int lu_valid;
    public int qf_status;
    public int correction_status;
    public int rg_last_lu;
    public int unit_type;
    public int unit_type_sub_code;
}
