package orvane.str.diskarray;

/** Lacks next_lun, the last field whose failure drops the object. */
public class UniteLU2 {
    public int unite_info;
    public int status;
    public int capacity;
    public int child_lu_count;
    public int next_lun_absent;
}
