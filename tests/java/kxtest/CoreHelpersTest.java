package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

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
    public void eucJpCopyKeepsAtMostNMinusOneBytes() {
        byte[] dst = filled(5, 0x7F);
        assertEquals(0, CoreProbe.multiByte("\u65e5\u672c\u8a9e", dst)); // 6 bytes in EUC-JP
        assertArrayEquals(new byte[] {(byte) 0xC6, (byte) 0xFC, (byte) 0xCB, (byte) 0xDC, 0}, dst);
        dst = filled(5, 0x7F);
        assertEquals(0, CoreProbe.multiByte("ab", dst));
        assertArrayEquals(new byte[] {'a', 'b', 0, 0x7F, 0x7F}, dst);
    }

    @Test
    public void stringArraysFillFixedSlotsUpToTheCapacity() {
        Fields f = new Fields();
        f.strs = new String[] {"one", "twotwotwo", "three"};
        byte[] dst = filled(12, 0x7F); // two slots of 6
        assertEquals(0, CoreProbe.getStrArray(f, "strs", 6, dst));
        byte[] expected = new byte[12];
        System.arraycopy(cstr("one", 6), 0, expected, 0, 6);
        System.arraycopy(cstr("twotw", 6), 0, expected, 6, 6);
        assertArrayEquals(expected, dst);

        f.strs = new String[] {"a", null};
        assertEquals(2817, CoreProbe.getStrArray(f, "strs", 6, new byte[12]));
    }

    @Test
    public void intArraysMustHoldTheWholeRegion() {
        Fields f = new Fields();
        f.ints = new int[] {1, -2, 3};
        int[] dst = new int[3];
        assertEquals(0, CoreProbe.getIntArray(f, "ints", dst));
        assertArrayEquals(new int[] {1, -2, 3}, dst);
        Throwable t = thrown(() -> CoreProbe.getIntArray(f, "ints", new int[4]));
        assertEquals(ArrayIndexOutOfBoundsException.class, t.getClass());

        f.grid = new int[][] {{1, 2}, {3, 4}};
        int[] rows = new int[4];
        assertEquals(0, CoreProbe.getInt2Array(f, "grid", 2, 2, rows));
        assertArrayEquals(new int[] {1, 2, 3, 4}, rows);
        f.grid = new int[][] {{1, 2}, null};
        assertEquals(2817, CoreProbe.getInt2Array(f, "grid", 2, 2, new int[4]));
    }

    @Test
    public void byteTablesWidenWithSignAndNarrowToTheLowByte() {
        assertArrayEquals(new int[] {1, -2, -1, -128, 127},
                CoreProbe.intsFromBytes(new byte[] {1, (byte) 0xFE, (byte) 0xFF, (byte) 0x80, 0x7F}));

        Fields f = new Fields();
        f.ints = new int[] {258, -1, 0x7F};
        byte[] dst = filled(2, 0x55); // capacity 2: the third element is not written
        assertEquals(0, CoreProbe.bytesFromInts(f, "ints", dst));
        assertArrayEquals(new byte[] {0x02, (byte) 0xFF}, dst);

        f.ints = new int[0];
        dst = filled(3, 0x55);
        assertEquals(0, CoreProbe.bytesFromInts(f, "ints", dst));
        assertArrayEquals(new byte[] {0, 0x55, 0x55}, dst);

        f.ints = null;
        assertEquals(2817, CoreProbe.bytesFromInts(f, "ints", new byte[2]));
    }

    @Test
    public void byteArraysAreWrittenIntoTheArrayTheFieldHolds() {
        Fields f = new Fields();
        byte[] held = new byte[4];
        f.bytes = held;
        assertEquals(0, CoreProbe.setByteArray(f, "bytes", new byte[] {9, 8, 7, 6}));
        assertTrue(f.bytes == held);
        assertArrayEquals(new byte[] {9, 8, 7, 6}, held);

        f.bytes = null;
        assertEquals(2817, CoreProbe.setByteArray(f, "bytes", new byte[] {1}));
        assertNull(f.bytes);

        f.bytes = new byte[2];
        Throwable t = thrown(() -> CoreProbe.setByteArray(f, "bytes", new byte[4]));
        assertEquals(ArrayIndexOutOfBoundsException.class, t.getClass());
    }

    @Test
    public void stringArrayWriterBuildsAnArrayAsLongAsTheElementSize() {
        Fields f = new Fields();
        byte[] src = new byte[100 * 100];
        System.arraycopy(cstr("a@x", 100), 0, src, 0, 100);
        System.arraycopy(cstr("b@y", 100), 0, src, 100, 100);
        assertEquals(0, CoreProbe.setStrArray(f, "strs", src, 2, 100));
        assertEquals(100, f.strs.length);
        assertEquals("a@x", f.strs[0]);
        assertEquals("b@y", f.strs[1]);
        for (int k = 2; k < 100; k++) assertNull(f.strs[k]);
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
        Fields f = new Fields();
        double[][] cases = {{12.345, 1234}, {-0.019, -1}, {400.0, -25536}, {99.999, 9999}, {0.0, 0}};
        for (double[] c : cases) {
            assertEquals(0, CoreProbe.setShortFromDouble(f, "fixed", c[0]));
            assertEquals("value " + c[0], (short) c[1], f.fixed);
        }
        f.fixed = -1;
        assertEquals(-0.01, CoreProbe.getDoubleFromShort(f, "fixed"), 0.0);
        f.fixed = (short) -25536;
        assertEquals(-255.36, CoreProbe.getDoubleFromShort(f, "fixed"), 1e-9);
        f.fixed = 1234;
        assertEquals(12.34, CoreProbe.getDoubleFromShort(f, "fixed"), 1e-9);
    }

    @Test
    public void intReaderReportsAMissingFieldOnlyThroughItsValue() {
        Fields f = new Fields();
        f.i = 42;
        assertEquals(42, CoreProbe.getInt(f, "i"));
        assertEquals(-1, CoreProbe.getInt(null, "i"));
    }
}
