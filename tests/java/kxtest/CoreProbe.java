package kxtest;

/** Direct access to the bridge's field helpers and exception functions (test-only library). */
public final class CoreProbe {
    static {
        System.load(System.getProperty("kx.probe"));
    }

    private CoreProbe() {}

    public static native int getString(Object o, String field, byte[] dst);
    public static native int jstringToChars(String s, byte[] dst);
    public static native int bytesFromInts(int[] ints, byte[] dst);
    public static native int[] intsFromBytes(byte[] src);
    public static native int setStringUnicode(Object o, String field, byte[] buffer);
    public static native short fixedPointShort(double v);
    public static native int errorThrow(int code);
    public static native int classNotFoundThrow(String path);
    public static native Object newObject(String classPath);

    /** Reads a CallLookupsTest.Table in one call's lookups (stuffed: left without room). */
    public static native int readRows(Object table, boolean stuffed, byte[] dst);
    /** Builds the RAID group report from its record bytes twice in one call. */
    public static native Object[] writeGroupsTwice(byte[] record, boolean stuffed);
}
