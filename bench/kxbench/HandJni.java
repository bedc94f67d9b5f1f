package kxbench;

/**
 * The benchmark's reference: the same trees built, and the same input record
 * read, by hand-written JNI code that looks every class, constructor and field
 * up once per call (bench/handmade.cpp, in the test-only probe library).
 * lax: builders without the fflush before each record, a reader that uses the
 * first element's field IDs for every element.
 */
final class HandJni {
    static {
        System.load(System.getProperty("kx.probe"));
    }

    private HandJni() {}

    static native Object logicalUnits(byte[] record, boolean lax);
    static native Object areaInformation(byte[] record, boolean lax);
    static native Object raidGroupInformation(byte[] record, boolean lax);
    static native Object spinDownUp(byte[] record, boolean lax);
    static native byte[] createRaidGroup(Object create, boolean lax);
    static native Object pairInformation(byte[] record, boolean lax);
    static native byte[] startLuMigration(Object request, boolean lax);
    /** The tree of plan (Planned.flat) built from record; copies > 0: an array of that many records. */
    static native Object planned(Object[] plan, byte[] record, int copies, boolean lax);
    /** obj read with plan into a zero-filled record; its bytes when give, else an empty array. */
    static native byte[] plannedRead(Object[] plan, Object obj, boolean give);
}
