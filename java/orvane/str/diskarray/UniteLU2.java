package orvane.str.diskarray;

public class UniteLU2 {
    public int unite_info;
    public int status;
    public int capacity;
    public int child_lu_count;
    public int next_lun;
}
