package orvane.str.diskarray;

/** lu has the wrong type. */
public class LuMappingHGInfo {
    public long[] lu = new long[256];
}
