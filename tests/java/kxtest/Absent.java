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

    /** Every field can be looked up and every array made again; how often the absent field was asked for or an array refused. */
    static native int none();
}
