package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotEquals;
import static org.junit.Assert.assertTrue;

import java.io.File;
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Comparator;
import java.util.List;
import java.util.concurrent.TimeUnit;
import java.util.stream.Stream;
import org.junit.After;
import org.junit.Assume;
import org.junit.Before;
import org.junit.Test;

/**
 * The page mode of the test double's allocation seam: a block ends where an
 * inaccessible page begins and a released block is inaccessible, so a read one
 * byte past a block or after its release kills the JVM where it happens, while
 * every check of the seam holds as in its usual mode.  The blocks come from the
 * seam directly (natives of the double below); the reads that must kill a JVM
 * run in a child JVM.
 */
public class SeamPagesTest {
    static {
        System.load(System.getProperty("kx.fake"));
    }

    static final int GUARD = 0x5A, POISON = 0xA5;

    static native long take(int bytes);

    static native void give(long block, int bytes, boolean wipe);

    static native int peek(long block, int offset);

    static native void poke(long block, int offset, int value);

    static native long pageSize();

    boolean wasOn;

    @Before
    public void pagesOn() {
        FakePernix.reset();
        assertEquals("release faults left by an earlier test", "", FakePernix.takeFaults());
        wasOn = FakePernix.seamPages(true);
    }

    @After
    public void pagesAsBefore() {
        FakePernix.seamPages(wasOn);
        FakePernix.reset();
        FakePernix.takeFaults();
    }

    static void clear(long block, int bytes) {
        for (int i = 0; i < bytes; i++) poke(block, i, 0);
    }

    @Test
    public void blocksEndAtAPageBoundaryBehindGuardBytesUnrounded() {
        long page = pageSize();
        for (int n : new int[] {0, 1, 13, 4064, 4065, 4096, 100_003}) {
            long b = take(n);
            assertNotEquals("block of " + n, 0, b);
            assertEquals("end of a block of " + n + " at a page boundary", 0, (b + n) % page);
            if (n > 0) {
                assertEquals("fresh block of " + n + " holds the poison byte", POISON, peek(b, 0));
                assertEquals(POISON, peek(b, n - 1));
            }
            // The whole rest of the first page is guard bytes.
            long first = (b - 32) / page * page;
            assertEquals(GUARD, peek(b, -1));
            assertEquals(GUARD, peek(b, (int) (first - b)));
            clear(b, n);
            give(b, n, true);
        }
        assertEquals("", FakePernix.takeFaults());
        assertEquals(0, FakePernix.liveBlocks());
    }

    @Test
    public void theSeamsChecksHoldAndAReleasedAddressIsNotHandedOutAgain() {
        long page = pageSize();
        long near = take(40);
        poke(near, -1, 0);
        give(near, 40, false);
        long far = take(40);
        poke(far, (int) ((far - 32) / page * page - far), 0);  // the first byte of the block's first page
        give(far, 40, false);
        assertEquals("guard bytes of a 40-byte block overwritten\n".repeat(2), FakePernix.takeFaults());

        long secret = take(64);
        clear(secret, 64);
        poke(secret, 9, 1);
        give(secret, 64, true);
        give(secret, 64, true);
        assertEquals("a 64-byte block released as wiped still holds data at byte 9\n"
                     + "release of a block that is not live (double or foreign release)\n", FakePernix.takeFaults());
        assertEquals(1, FakePernix.unwipedCount(64));

        long odd = take(24);
        clear(odd, 24);
        give(odd, 23, false);
        assertEquals("block of 24 bytes released as 23\n", FakePernix.takeFaults());

        long a = take(100);
        clear(a, 100);
        give(a, 100, true);
        long b = take(100);
        assertNotEquals("a released block's address handed out again at once", a, b);
        assertEquals(1, FakePernix.liveBlocks());
        FakePernix.reset();
        assertEquals("1 block(s) never released\n", FakePernix.takeFaults());

        FakePernix.failAllocation(2);
        long one = take(8);
        assertEquals("the second allocation fails", 0, take(8));
        clear(one, 8);
        give(one, 8, true);
        assertEquals("", FakePernix.takeFaults());
    }

    // ------------------------------------------------------------ in a child JVM

    /** Child JVM: takes a 100-byte block, reads one byte past it (past) or of it once released (released). */
    public static void main(String[] args) {
        int n = 100;
        long b = take(n);
        int at = n;
        if (args[0].equals("released")) {
            clear(b, n);
            give(b, n, true);
            at = 0;
        }
        System.out.println("read " + peek(b, at));
    }

    /** A child JVM's exit code, output and error report (hs_err file, empty when none). */
    static final class Child {
        int exit;
        String out;
        String report = "";
    }

    static Child child(String read, boolean pages) throws IOException, InterruptedException {
        Path dir = Files.createTempDirectory("kx-seam-pages");
        try {
            List<String> cmd = new ArrayList<>(List.of(
                Path.of(System.getProperty("java.home"), "bin", "java").toString(),
                "-Dkx.fake=" + System.getProperty("kx.fake"), "-XX:-CreateCoredumpOnCrash",
                "-XX:ErrorFile=" + dir.resolve("hs_err.log"), "-cp", System.getProperty("java.class.path"),
                SeamPagesTest.class.getName(), read));
            ProcessBuilder pb = new ProcessBuilder(cmd).redirectErrorStream(true);
            pb.environment().put("KX_SEAM_PAGES", pages ? "1" : "0");
            pb.redirectOutput(dir.resolve("out").toFile());
            Process p = pb.start();
            assertTrue("the child JVM did not end", p.waitFor(120, TimeUnit.SECONDS));
            Child c = new Child();
            c.exit = p.exitValue();
            c.out = Files.readString(dir.resolve("out"), StandardCharsets.UTF_8);
            if (Files.exists(dir.resolve("hs_err.log"))) {
                c.report = Files.readString(dir.resolve("hs_err.log"), StandardCharsets.UTF_8);
            }
            return c;
        } finally {
            try (Stream<Path> files = Files.walk(dir)) {
                files.sorted(Comparator.reverseOrder()).map(Path::toFile).forEach(File::delete);
            }
        }
    }

    @Test
    public void aReadPastABlockOrOfAReleasedOneKillsTheJvmInPageModeOnly() throws Exception {
        // The 32-bit JVM of the i386 legs runs under an emulator, through a
        // launcher a child cannot be started from.
        Assume.assumeTrue("child JVMs on x86-64 only", "amd64".equals(System.getProperty("os.arch")));
        for (String read : new String[] {"past", "released"}) {
            Child c = child(read, true);
            String what = read + " in page mode: exit " + c.exit + "\n" + c.out;
            assertNotEquals(what, 0, c.exit);
            assertTrue(what, c.report.contains("SIGSEGV") && c.report.contains("Java_kxtest_SeamPagesTest_peek"));
            assertTrue(what, !c.out.contains("read "));
        }
        // The same reads in the usual mode meet a guard byte and the poison byte.
        Child past = child("past", false), released = child("released", false);
        assertEquals(past.out, 0, past.exit);
        assertTrue(past.out, past.out.contains("read " + GUARD));
        assertEquals(released.out, 0, released.exit);
        assertTrue(released.out, released.out.contains("read " + POISON));
    }
}
