package kxtest;

/** Scans of large byte arrays, done natively (the i386 legs interpret Java). */
final class Bytes {
    static {
        System.load(System.getProperty("kx.probe"));
    }

    private Bytes() {}

    /** Index of the first byte from `from` equal to value (other: not equal to it), or -1. */
    static native int find(byte[] b, int from, int value, boolean other);

    /** Index of the first difference (the shorter length when one is a prefix of the other), or -1. */
    static native int mismatch(byte[] a, byte[] b);

    static boolean same(byte[] a, byte[] b) {
        return a == b || a != null && b != null && mismatch(a, b) < 0;
    }

    static boolean zero(byte[] b) {
        return b == null || find(b, 0, 0, true) < 0;
    }

    static boolean holds(byte[] b, int value) {
        return b != null && find(b, 0, value, false) >= 0;
    }
}
