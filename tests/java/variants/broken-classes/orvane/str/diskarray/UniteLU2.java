package orvane.str.diskarray;

/** Lacks next_lun. */
public class UniteLU2 {
    public int unite_info, status, capacity, child_lu_count;
}
