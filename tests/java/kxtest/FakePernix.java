package kxtest;

import org.junit.Assume;

/**
 * Control of the test double of libpernix.so: what each KX_ function returns and
 * writes, what it was handed, and the allocation seam of the bridge's test build.
 * Argument indices are 0-based positions in the C call.
 */
public final class FakePernix {
    static {
        System.load(System.getProperty("kx.fake"));
    }

    private FakePernix() {}

    /**
     * Forgets calls, scripts and seam state.  Release faults are kept (and blocks
     * still live become one) until {@link #takeFaults} takes them.
     */
    public static native void reset();

    /** Every later call of fn returns code. */
    public static native void willReturn(String fn, int code);

    /**
     * Until the next reset, every call of every function writes seeded random
     * bytes into all its outputs and returns a random result code, whatever
     * was scripted: the same seed, the same bytes and codes.
     */
    public static native void hostile(long seed);

    /** The result code the last call returned in hostile mode. */
    public static native int hostileResult();

    /** Every later call of fn writes data into its pointer argument arg (at most its size). */
    public static native void willWrite(String fn, int arg, byte[] data);

    /** Writes a little-endian int into the int out-argument arg of fn. */
    public static void willWriteInt(String fn, int arg, int value) {
        willWrite(fn, arg, Rec.of(4).i32(0, value).bytes());
    }

    public static native int calls(String fn);

    /** Names of all functions called, in order. */
    public static native String[] log();

    /** Bytes of pointer argument arg of the call'th call (0-based) of fn, as handed over; null for a null pointer. */
    public static native byte[] arg(String fn, int call, int arg);

    /**
     * Bytes of the k-th buffer (0-based, in the record's order) that pointers inside record argument arg lead
     * to, as handed over; null for a null pointer.
     */
    public static native byte[] pointee(String fn, int call, int arg, int k);

    public static native int intArg(String fn, int call, int arg);

    public static native boolean isNull(String fn, int call, int arg);

    /**
     * Whether the library under test routes its allocations through the seam.
     * The shipped library has none: the runner then passes kx.seam=false.
     */
    public static final boolean SEAM = !"false".equals(System.getProperty("kx.seam"));

    /**
     * The k-th allocation of the bridge (1-based, counted from reset) fails; 0 for none.
     * Without the seam, the calling test ends here as skipped (its checks so far stand).
     */
    public static void failAllocation(int k) {
        Assume.assumeTrue("the library under test has no allocation seam", SEAM);
        failAllocationAt(k);
    }

    private static native void failAllocationAt(int k);

    /**
     * Ends the calling test here as skipped when the library has no seam: what
     * follows counts, fails or inspects the seam's blocks.
     */
    public static void assumeSeam() {
        Assume.assumeTrue("the library under test has no allocation seam", SEAM);
    }

    /** Allocations made since reset (the test ends as skipped without the seam). */
    public static int allocations() {
        assumeSeam();
        return allocationCount();
    }

    /** allocations without the seam test: 0 when there is no seam. */
    public static native int allocationCount();


    /**
     * Switches the seam's page mode for the blocks allocated from now on (each
     * block ends where an inaccessible page begins; a released block becomes
     * inaccessible); KX_SEAM_PAGES=1 in the environment starts with it on.
     * Answers whether it was on.
     */
    public static native boolean seamPages(boolean on);

    /** Blocks allocated and not yet released. */
    public static native int liveBlocks();

    /** Blocks of size bytes released since reset that still held a non-zero byte (not cleared first). */
    public static int unwipedReleases(int size) {
        assumeSeam();
        return unwipedCount(size);
    }

    /** unwipedReleases without the seam test: 0 when there is no seam. */
    public static native int unwipedCount(int size);
    /** Bytes of memory the double keeps for reuse (released blocks, buffers of forgotten calls). */
    public static native long keptBytes();

    /** Most bytes of the bridge's blocks live at once since reset. */
    public static native long peakBytes();

    /**
     * Release faults seen and not yet taken: double or foreign releases, size
     * mismatches, overwritten guards, secrets not cleared, blocks never released,
     * blocks handed to the library without being cleared.
     */
    public static native String faults();

    /** The faults seen so far, forgotten from now on. */
    public static native String takeFaults();

    /** The bridge's flushes of stdout since the JVM started; -1 when the flush shim is not loaded. */
    public static native long flushes();

    /** The bridge's flushes of stdout made before the call'th call (0-based) of fn. */
    public static native long flushesAtCall(String fn, int call);

    public static final int NOT_A_BLOCK = 0, LIVE = 1, RELEASED = 2, RELEASED_WIPED = 3;

    /** For each argument of the call'th call of fn: how the block handed there was released. */
    public static int[] releases(String fn, int call) {
        assumeSeam();
        return releaseStates(fn, call);
    }

    /** releases without the seam test: every argument NOT_A_BLOCK when there is no seam. */
    public static native int[] releaseStates(String fn, int call);

    /** Indices of the arguments of the call'th call of fn whose blocks were released wiped. */
    public static java.util.Set<Integer> wipedArgs(String fn, int call) {
        java.util.Set<Integer> out = new java.util.TreeSet<>();
        int[] r = releases(fn, call);
        for (int i = 0; i < r.length; i++) if (r[i] == RELEASED_WIPED) out.add(i);
        return out;
    }
}
