package orvane.str.diskarray;

public class IntegrationLUSet {
    public int operation;
    public int parent_lun;
    public int child_lun;
    public int child_count;
    public int[] child_lu;
}
