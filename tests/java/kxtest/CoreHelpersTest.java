package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import java.util.Arrays;
import org.junit.Test;

/** The field and array helpers' own rules, called directly. */
public class CoreHelpersTest extends BridgeTest {
    private static byte[] filled(int n, int value) {
        byte[] b = new byte[n];
        Arrays.fill(b, (byte) value);
        return b;
    }

    @Test
    public void stringFieldsAreCutToTheBufferAndPadded() {
        Fields f = new Fields();
        f.s = "ABCDEFGHIJKLMNOPQRST"; // 20 characters into 17 bytes
        byte[] dst = filled(17, 0x7F);
        assertEquals(0, CoreProbe.getString(f, "s", dst));
        assertArrayEquals(cstr("ABCDEFGHIJKLMNOP", 17), dst);

        f.s = "ab";
        dst = filled(8, 0x7F);
        assertEquals(0, CoreProbe.getString(f, "s", dst));
        assertArrayEquals(cstr("ab", 8), dst); // rest of the buffer zero-filled
    }

    @Test
    public void multiByteCharactersAreCutByBytes() {
        Fields f = new Fields();
        f.s = "\u00e9\u00e9\u00e9"; // two bytes each in modified UTF-8
        byte[] dst = new byte[4];
        assertEquals(0, CoreProbe.getString(f, "s", dst));
        assertArrayEquals(new byte[] {(byte) 0xC3, (byte) 0xA9, (byte) 0xC3, 0}, dst);
    }

    @Test
    public void nullOrMissingStringFieldFailsAndLeavesTheBuffer() {
        Fields f = new Fields();
        byte[] dst = filled(9, 0x7F);
        assertEquals(2817, CoreProbe.getString(f, "s", dst));
        assertArrayEquals(filled(9, 0x7F), dst);
        // A missing field leaves the JVM's NoSuchFieldError pending for the caller.
        Throwable t = thrown(() -> CoreProbe.getString(f, "nope", new byte[4]));
        assertEquals(NoSuchFieldError.class, t.getClass());
    }

    @Test
    public void stringArgumentsAreCutAndEmptyOnesRefused() {
        byte[] dst = filled(4, 0x7F);
        assertEquals(0, CoreProbe.jstringToChars("abcdef", dst));
        assertArrayEquals(cstr("abc", 4), dst);

        dst = filled(4, 0x7F);
        assertEquals(2817, CoreProbe.jstringToChars("", dst));
        assertEquals(0, dst[0]);
        dst = filled(4, 0x7F);
        assertEquals(2817, CoreProbe.jstringToChars(null, dst));
        assertEquals(0, dst[0]);
    }

    @Test
    public void byteTablesWidenWithSignAndNarrowToTheLowByte() {
        assertArrayEquals(new int[] {1, -2, -1, -128, 127},
                CoreProbe.intsFromBytes(new byte[] {1, (byte) 0xFE, (byte) 0xFF, (byte) 0x80, 0x7F}));

        byte[] dst = filled(2, 0x55); // capacity 2: the third element is not written
        assertEquals(0, CoreProbe.bytesFromInts(new int[] {258, -1, 0x7F}, dst));
        assertArrayEquals(new byte[] {0x02, (byte) 0xFF}, dst);

        dst = filled(3, 0x55);
        assertEquals(0, CoreProbe.bytesFromInts(new int[0], dst));
        assertArrayEquals(new byte[] {0, 0x55, 0x55}, dst);
    }

    @Test
    public void unicodeStringsStopAtTheFirstNul() {
        Fields f = new Fields();
        byte[] buf = {'a', 'b', 'c', 0, 'z', 'z'};
        assertEquals(0, CoreProbe.setStringUnicode(f, "s", buf));
        assertEquals("abc", f.s);
    }

    @Test
    public void fixedPointShortsKeepTwoDecimalsAndWrap() {
        double[][] cases = {{12.345, 1234}, {-0.019, -1}, {400.0, -25536}, {99.999, 9999}, {0.0, 0}};
        for (double[] c : cases) {
            assertEquals("value " + c[0], (short) c[1], CoreProbe.fixedPointShort(c[0]));
        }
    }
}
