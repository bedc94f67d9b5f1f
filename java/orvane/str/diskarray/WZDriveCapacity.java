package orvane.str.diskarray;

public class WZDriveCapacity {
    public int[] row;
    public int spare;
}
