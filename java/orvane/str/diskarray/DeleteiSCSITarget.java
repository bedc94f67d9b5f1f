package orvane.str.diskarray;

public class DeleteiSCSITarget {
    public int[] delete_target;
}
