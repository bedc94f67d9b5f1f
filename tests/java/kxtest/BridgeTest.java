package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;
import static org.junit.Assert.fail;

import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.List;
import orvane.str.diskarray.DiskArrayUtilityJNI;
import org.junit.After;
import org.junit.Assume;
import org.junit.Before;

/**
 * Base of the JVM tests: a fresh test double for every test, and after every
 * test a check that the bridge released each block exactly once, within its
 * bounds.
 */
public abstract class BridgeTest {
    protected final DiskArrayUtilityJNI jni = new DiskArrayUtilityJNI();

    @Before
    public void resetFake() {
        FakePernix.reset();
        assertEquals("release faults left by an earlier test", "", FakePernix.takeFaults());
    }

    @After
    public void checkSeam() {
        int live = FakePernix.liveBlocks();
        FakePernix.reset();  // a live block becomes a fault
        assertEquals("release faults", "", FakePernix.takeFaults());
        assertEquals("blocks not released", 0, live);
    }

    /** Blocks the last call left or released wrongly, as problems of `what`; the double is reset. */
    static List<String> seamFaults(String what) {
        int live = FakePernix.liveBlocks();
        FakePernix.reset();
        String faults = FakePernix.takeFaults();
        List<String> out = new ArrayList<>();
        if (live != 0 || !faults.isEmpty()) out.add(what + ": " + live + " live block(s); " + faults.trim());
        return out;
    }

    /** A body that may throw anything. */
    public interface Body {
        void run() throws Throwable;
    }

    /** A call of a native with the given unit name. */
    public interface UnitCall {
        void run(String unit) throws Throwable;
    }

    /** Runs body, which must throw; returns what it threw. */
    public static Throwable thrown(Body body) {
        try {
            body.run();
        } catch (Throwable t) {
            return t;
        }
        fail("nothing was thrown");
        return null;
    }

    /** The result code of the DiskArrayException that body throws. */
    public static int code(Body body) {
        Throwable t = thrown(body);
        assertEquals("orvane.str.diskarray.DiskArrayException", t.getClass().getName());
        try {
            return (Integer) t.getClass().getMethod("getCode").invoke(t);
        } catch (ReflectiveOperationException e) {
            throw new AssertionError(e);
        }
    }

    /** Asserts body throws the out-of-memory report: ClassNotFoundException "java/lang/OutofMemoryError". */
    public static void assertOutOfMemory(Body body) {
        Throwable t = thrown(body);
        assertEquals(ClassNotFoundException.class, t.getClass());
        assertEquals("java/lang/OutofMemoryError", t.getMessage());
    }

    /** Fails each allocation of body in turn and checks each is reported as out of memory. */
    public static void assertEachAllocationFailureReported(Body body) throws Throwable {
        FakePernix.reset();
        body.run();
        Assume.assumeTrue("the library under test has no allocation seam", FakePernix.SEAM);
        int n = FakePernix.allocationCount();
        assertTrue("body allocates nothing", n > 0);
        for (int k = 1; k <= n; k++) {
            FakePernix.reset();
            FakePernix.failAllocation(k);
            assertOutOfMemory(body);
            assertEquals("blocks not released after failing allocation " + k, 0, FakePernix.liveBlocks());
            assertEquals("", FakePernix.faults());
        }
        FakePernix.reset();
    }

    /** Whether this JVM, and so the library under test, is 32-bit (the i386 legs). */
    public static final boolean I386 = "32".equals(System.getProperty("sun.arch.data.model"));

    /**
     * The offset of a field that follows a pointer slot: the absolute i386
     * offset in the i386 legs, the x86-64 one otherwise.  Write both as the
     * layouts give them; never derive one from the other.
     */
    public static int at(int i386, int x8664) {
        return I386 ? i386 : x8664;
    }

    /** The n-byte NUL-padded C buffer holding s. */
    public static byte[] cstr(String s, int n) {
        byte[] out = new byte[n];
        byte[] b = s.getBytes(StandardCharsets.UTF_8);
        System.arraycopy(b, 0, out, 0, Math.min(b.length, n - 1));
        return out;
    }

    public static void assertCString(String expected, int n, byte[] actual) {
        assertArrayEquals(cstr(expected, n), actual);
    }

    public static String repeat(char c, int n) {
        return String.valueOf(c).repeat(n);
    }
}
