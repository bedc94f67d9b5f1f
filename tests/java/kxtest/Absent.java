package kxtest;

/**
 * One field of one class made absent to the JNI field lookups of the calling
 * thread (test-only library): the JVM answers them with its own
 * NoSuchFieldError, as for a class compiled without that field; or arrays of
 * given classes that the JVM cannot make (its own OutOfMemoryError).
 */
final class Absent {
    static {
        System.load(System.getProperty("kx.probe"));
    }

    private Absent() {}

    /** From now on, until none(), c's field `name` cannot be looked up on this thread. */
    static native void field(Class<?> c, String name);

    /** From now on, until none(), no array of any of the classes can be made on this thread (OutOfMemoryError). */
    static native void arrays(Class<?>[] classes);

    /**
     * From now on, until none(), call number nth (0 the first, -1 every one) of JNI
     * function `function` on this thread fails as the JVM fails it when memory or
     * room runs out: EnsureLocalCapacity, NewStringUTF, NewIntArray,
     * NewByteArray, GetStringUTFChars, GetIntArrayElements, NewObject,
     * FindClass or GetMethodID.
     */
    static native void refuse(String function, int nth);

    /** Calls of JNI function `function` (one refuse() names) since refuse(). */
    static native int calls(String function);

    /** Every field can be looked up, every array made and every call answered again; how often the absent field was asked for, an array or a call refused. */
    static native int none();
}
