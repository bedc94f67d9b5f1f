package orvane.str.diskarray;

public class LuMappingHGInfo {
    public int[] lu = new int[256];
}
