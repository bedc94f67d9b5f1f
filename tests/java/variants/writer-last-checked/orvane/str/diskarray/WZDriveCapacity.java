package orvane.str.diskarray;

/** Lacks spare, the last field whose failure drops the object. */
public class WZDriveCapacity {
    public int[] row;
    public int spare_absent;
}
