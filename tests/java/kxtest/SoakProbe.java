package kxtest;

/** What the load test watches: the JVM's JNI references and the native heap (test-only library). */
public final class SoakProbe {
    static {
        System.load(System.getProperty("kx.probe"));
    }

    private SoakProbe() {}

    /** {global, local} JNI references the JVM holds right now, over every thread. */
    public static native long[] jniReferences();

    /** Returns the memory malloc keeps free to the system (malloc_trim). */
    public static native void trimMalloc();

    /** Bytes of the process's malloc heap in use. */
    public static native long mallocInUse();
}
