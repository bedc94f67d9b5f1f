package orvane.str.diskarray;

/** Lacks child_lun, the last field whose failure drops the object. */
public class UniteLU {
    public int unite_info;
    public int status;
    public int capacity;
    public int child_lu_count;
    public int[] child_lun_absent;
}
