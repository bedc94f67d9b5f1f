package kxtest;

import static org.junit.Assert.assertEquals;

import org.junit.Test;

/** How result codes become exceptions. */
public class ErrorThrowTest extends BridgeTest {
    @Test
    public void codesBecomeDiskArrayExceptionsUnchanged() {
        for (int c : new int[] {258, 2817, -5, -1, 1, 0x7FFFFFFF}) {
            assertEquals(c, code(() -> CoreProbe.errorThrow(c)));
        }
    }

    @Test
    public void code256ThrowsNothing() {
        assertEquals(256, CoreProbe.errorThrow(256));
    }

    @Test
    public void outOfMemoryIsReportedByItsMisspelledClassName() {
        assertOutOfMemory(() -> CoreProbe.errorThrow(65535));
    }

    @Test
    public void aMissingClassRaisesClassNotFoundWithItsPath() {
        Throwable t = thrown(() -> CoreProbe.newObject("orvane/str/diskarray/NoSuchRecord"));
        assertEquals(ClassNotFoundException.class, t.getClass());
        assertEquals("orvane/str/diskarray/NoSuchRecord", t.getMessage());
    }

    @Test
    public void classNotFoundForItselfEndsTheChain() {
        assertEquals(0, CoreProbe.classNotFoundThrow("java/lang/ClassNotFoundException"));
        Throwable t = thrown(() -> CoreProbe.classNotFoundThrow("a/b/C"));
        assertEquals("a/b/C", t.getMessage());
    }
}
