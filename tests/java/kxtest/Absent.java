package kxtest;

/**
 * One field of one class made absent to the JNI field lookups of the calling
 * thread (test-only library): the JVM answers them with its own
 * NoSuchFieldError, as for a class compiled without that field.
 */
final class Absent {
    static {
        System.load(System.getProperty("kx.probe"));
    }

    private Absent() {}

    /** From now on, until none(), c's field `name` cannot be looked up on this thread. */
    static native void field(Class<?> c, String name);

    /** Every field can be looked up again; how often the absent one was asked for. */
    static native int none();
}
