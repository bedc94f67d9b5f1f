package orvane.str.diskarray;

/** Lacks its last field, unit_type_sub_code. */
public class LogicalUnit {
    public int luNumber, rgNumber, raid_level, staging, capacity, befor_lun, cachepart_no,
        pair_cachepart_valid, pair_cachepart_no, current_cachepart_no, stripe, lu_use_type, defaultCTL,
        currentCTL, status, hostblock, lu_valid, qf_status, correction_status, rg_last_lu, unit_type;
}
