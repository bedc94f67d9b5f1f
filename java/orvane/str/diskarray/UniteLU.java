package orvane.str.diskarray;

public class UniteLU {
    public int unite_info;
    public int status;
    public int capacity;
    public int child_lu_count;
    public int[] child_lun;
}
