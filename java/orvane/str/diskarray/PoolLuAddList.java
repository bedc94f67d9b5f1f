package orvane.str.diskarray;

public class PoolLuAddList {
    public int lu_count;
    public int[] lu;
}
