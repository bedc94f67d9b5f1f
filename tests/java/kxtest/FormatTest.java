package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.FormatList;
import orvane.str.diskarray.FormatStatusList;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.LuFormatStatusList;
import orvane.str.diskarray.ParityCorrectionList;
import orvane.str.diskarray.ParityCorrectionStatusList;
import orvane.str.diskarray.QuickFormatList;
import orvane.str.diskarray.QuickFormatOption;
import orvane.str.diskarray.QuickFormatStatusList;
import org.junit.Test;

public class FormatTest extends BridgeTest {
    static final KXSessionInfo S = SessionTest.session(3);

    /** A native call whose result (null, 0, an object) is looked at. */
    interface Call {
        Object run() throws Throwable;
    }

    /** One native of this family: the library function, a call with a unit name, a session-taking flag. */
    static final class Native {
        final String fn;
        final java.util.function.Function<String, Call> call;
        final boolean session;

        Native(String fn, boolean session, java.util.function.Function<String, Call> call) {
            this.fn = fn;
            this.session = session;
            this.call = call;
        }
    }

    Native[] natives() {
        QuickFormatOption o = new QuickFormatOption();
        return new Native[] {
            new Native("KX_LogicalUnitFormat", false, u -> () -> { jni.KX_LogicalUnitFormat(u, 1, 2); return null; }),
            new Native("KX_LogicalUnitFormatStatus", false, u -> () -> jni.KX_LogicalUnitFormatStatus(u, 1)),
            new Native("KX_LogicalUnitFormatImmediateCTL", false, u -> () -> jni.KX_LogicalUnitFormatImmediateCTL(u, 1, 2)),
            new Native("KX_EntryFormatList", false, u -> () -> { jni.KX_EntryFormatList(u, new FormatList()); return null; }),
            new Native("KX_GetFormatStatusList", false, u -> () -> jni.KX_GetFormatStatusList(u)),
            new Native("KX_GetQuickFormatOption", true, u -> () -> jni.KX_GetQuickFormatOption(u, S)),
            new Native("KX_SetQuickFormatOption", true, u -> () -> { jni.KX_SetQuickFormatOption(u, S, o); return null; }),
            new Native("KX_EntryQuickFormatList", true,
                       u -> () -> { jni.KX_EntryQuickFormatList(u, S, new QuickFormatList()); return null; }),
            new Native("KX_GetQuickFormatStatusList", true, u -> () -> jni.KX_GetQuickFormatStatusList(u, S)),
            new Native("KX_EntryParityCorrectionList", true,
                       u -> () -> { jni.KX_EntryParityCorrectionList(u, S, new ParityCorrectionList()); return null; }),
            new Native("KX_GetParityCorrectionStatusList", true, u -> () -> jni.KX_GetParityCorrectionStatusList(u, S)),
        };
    }

    static boolean empty(Object result) {
        return result == null || Integer.valueOf(0).equals(result);
    }

    @Test
    public void everyNativeRefusesANullUnitAndReportsTheLibrarysCode() throws Throwable {
        for (Native n : natives()) {
            FakePernix.reset();
            assertEquals(n.fn, 258, code(() -> n.call.apply(null).run()));
            assertEquals(n.fn, 0, FakePernix.calls(n.fn));

            FakePernix.willReturn(n.fn, -7);
            assertEquals(n.fn, -7, code(() -> n.call.apply("u").run()));
            FakePernix.willReturn(n.fn, 4099);
            assertEquals(n.fn, 4099, code(() -> n.call.apply("u").run()));
            FakePernix.willReturn(n.fn, 256);
            assertTrue(n.fn, empty(n.call.apply("u").run()));
            assertEquals(n.fn, 3, FakePernix.calls(n.fn));
            assertCString("u", 65, FakePernix.arg(n.fn, 0, 0));
            if (n.session) assertArrayEquals(n.fn, S.session_id, FakePernix.arg(n.fn, 0, 1));
        }
    }

    @Test
    public void everyAllocationFailureIsReported() throws Throwable {
        for (Native n : natives()) {
            if (n.fn.startsWith("KX_LogicalUnitFormat")) continue;  // nothing allocated
            assertEachAllocationFailureReported(() -> n.call.apply("u").run());
        }
        assertEachAllocationFailureReported(() -> jni.KX_LogicalUnitFormatStatusList("u"));
    }

    @Test
    public void formatCommandsPassTheirIntsAndReturnTheLibrarysInt() throws Throwable {
        jni.KX_LogicalUnitFormat("unit-a", 17, -3);
        assertEquals(17, FakePernix.intArg("KX_LogicalUnitFormat", 0, 1));
        assertEquals(-3, FakePernix.intArg("KX_LogicalUnitFormat", 0, 2));

        FakePernix.willWriteInt("KX_LogicalUnitFormatStatus", 2, 87);
        assertEquals(87, jni.KX_LogicalUnitFormatStatus("unit-a", 2047));
        assertEquals(2047, FakePernix.intArg("KX_LogicalUnitFormatStatus", 0, 1));

        FakePernix.willWriteInt("KX_LogicalUnitFormatImmediateCTL", 3, -1);
        assertEquals(-1, jni.KX_LogicalUnitFormatImmediateCTL("unit-a", 5, 1));
        assertEquals(5, FakePernix.intArg("KX_LogicalUnitFormatImmediateCTL", 0, 1));
        assertEquals(1, FakePernix.intArg("KX_LogicalUnitFormatImmediateCTL", 0, 2));
        // An error answers 0 after the throw, whatever the library wrote.
        FakePernix.willReturn("KX_LogicalUnitFormatImmediateCTL", 12);
        assertEquals(12, code(() -> jni.KX_LogicalUnitFormatImmediateCTL("unit-a", 5, 1)));
    }

    static Rec luFormatStatusList() {
        Rec r = Rec.of(32768);
        for (int i = 0; i < 2048; i++) {
            r.i32(16 * i, i).i32(16 * i + 4, i % 101).i32(16 * i + 8, -i).i32(16 * i + 12, 0x7000 + i);
        }
        return r;
    }

    @Test
    public void luFormatStatusListBuildsEveryEntry() {
        FakePernix.willWrite("KX_LogicalUnitFormatStatusList", 1, luFormatStatusList().bytes());
        LuFormatStatusList l = jni.KX_LogicalUnitFormatStatusList("unit-b");
        assertCString("unit-b", 65, FakePernix.arg("KX_LogicalUnitFormatStatusList", 0, 0));
        assertEquals(2048, l.lu.length);
        for (int i : new int[] {0, 1, 1000, 2047}) {
            assertEquals(i, l.lu[i].status);
            assertEquals(i % 101, l.lu[i].percent);
            assertEquals(-i, l.lu[i].err_code_sense_key);
            assertEquals(0x7000 + i, l.lu[i].err_code_sense_code);
        }
    }

    @Test
    public void luFormatStatusListTakesANullUnitAsAnEmptyName() throws Throwable {
        assertNotNull(jni.KX_LogicalUnitFormatStatusList(null));
        assertCString("", 65, FakePernix.arg("KX_LogicalUnitFormatStatusList", 0, 0));
        FakePernix.willReturn("KX_LogicalUnitFormatStatusList", 33);
        assertEquals(33, code(() -> jni.KX_LogicalUnitFormatStatusList(null)));
        FakePernix.willReturn("KX_LogicalUnitFormatStatusList", 256);
        assertNull(jni.KX_LogicalUnitFormatStatusList("u"));
    }

    @Test
    public void formatListSendsTheFullByteMap() {
        FormatList l = new FormatList();
        assertEquals(2048, l.lu.length);
        for (int i = 0; i < 2048; i++) l.lu[i] = (byte) (i * 7 + 1);
        jni.KX_EntryFormatList("unit-c", l);
        assertArrayEquals(l.lu, FakePernix.arg("KX_EntryFormatList", 0, 1));
        assertCString("unit-c", 65, FakePernix.arg("KX_EntryFormatList", 0, 0));

        // A longer map contributes its first 2048 bytes only.
        byte[] longer = new byte[3000];
        for (int i = 0; i < longer.length; i++) longer[i] = (byte) (i % 250 + 1);
        l.lu = longer;
        jni.KX_EntryFormatList("unit-c", l);
        assertArrayEquals(java.util.Arrays.copyOf(longer, 2048), FakePernix.arg("KX_EntryFormatList", 1, 1));
    }

    @Test
    public void aShortByteMapStillCallsTheLibraryWhichDecides() {
        FormatList l = new FormatList();
        l.lu = new byte[] {1, 1, 1};
        // Success: the array-bounds failure of the conversion reaches the caller.
        assertEquals(ArrayIndexOutOfBoundsException.class, thrown(() -> jni.KX_EntryFormatList("u", l)).getClass());
        assertTrue(Rec.wrap(FakePernix.arg("KX_EntryFormatList", 0, 1)).zero(0, 2048));
        // An error: the library's code replaces it.
        FakePernix.willReturn("KX_EntryFormatList", 41);
        assertEquals(41, code(() -> jni.KX_EntryFormatList("u", l)));

        QuickFormatList q = new QuickFormatList();
        q.lu = new byte[4095];
        assertEquals(ArrayIndexOutOfBoundsException.class,
                     thrown(() -> jni.KX_EntryQuickFormatList("u", S, q)).getClass());
        assertTrue(Rec.wrap(FakePernix.arg("KX_EntryQuickFormatList", 0, 2)).zero(0, 4096));
        assertArrayEquals(S.session_id, FakePernix.arg("KX_EntryQuickFormatList", 0, 1));
    }

    @Test
    public void aMissingListOrMapSendsAZeroRecord() {
        jni.KX_EntryFormatList("u", null);
        FormatList l = new FormatList();
        l.lu = null;
        jni.KX_EntryFormatList("u", l);
        jni.KX_EntryQuickFormatList("u", S, null);
        jni.KX_EntryParityCorrectionList("u", S, null);
        assertTrue(Rec.wrap(FakePernix.arg("KX_EntryFormatList", 0, 1)).zero(0, 2048));
        assertTrue(Rec.wrap(FakePernix.arg("KX_EntryFormatList", 1, 1)).zero(0, 2048));
        assertTrue(Rec.wrap(FakePernix.arg("KX_EntryQuickFormatList", 0, 2)).zero(0, 4096));
        assertTrue(Rec.wrap(FakePernix.arg("KX_EntryParityCorrectionList", 0, 2)).zero(0, 16392));
    }

    @Test
    public void quickFormatListSendsTheFullByteMap() {
        QuickFormatList q = new QuickFormatList();
        assertEquals(4096, q.lu.length);
        q.lu[0] = 1;
        q.lu[4095] = (byte) 0xFF;
        q.lu[2048] = 5;
        jni.KX_EntryQuickFormatList("unit-d", S, q);
        assertArrayEquals(q.lu, FakePernix.arg("KX_EntryQuickFormatList", 0, 2));
    }

    @Test
    public void parityCorrectionListIsLaidOutAsModeCountAndFourThousandInts() {
        ParityCorrectionList p = new ParityCorrectionList();
        assertEquals(4096, p.lu.length);
        p.correction_mode = 2;
        p.lu_count = 4097;  // not compared with the list
        for (int i = 0; i < 4096; i++) p.lu[i] = 100000 + i;
        jni.KX_EntryParityCorrectionList("unit-e", S, p);
        Rec r = Rec.wrap(FakePernix.arg("KX_EntryParityCorrectionList", 0, 2));
        assertEquals(16392, r.size());
        assertEquals(2, r.i32(0));
        assertEquals(4097, r.i32(4));
        assertEquals(100000, r.i32(8));
        assertEquals(100000 + 4095, r.i32(8 + 4 * 4095));

        // A shorter list fills the two ints, not the list, and the library still runs.
        p.lu = new int[4095];
        java.util.Arrays.fill(p.lu, 9);
        assertEquals(ArrayIndexOutOfBoundsException.class,
                     thrown(() -> jni.KX_EntryParityCorrectionList("u", S, p)).getClass());
        r = Rec.wrap(FakePernix.arg("KX_EntryParityCorrectionList", 1, 2));
        assertEquals(2, r.i32(0));
        assertEquals(4097, r.i32(4));
        assertTrue(r.zero(8, 4 * 4096));
    }

    @Test
    public void quickFormatOptionTravelsBothWays() {
        FakePernix.willWrite("KX_GetQuickFormatOption", 2, Rec.of(16).i32(0, 1).i32(4, -2).i32(8, 3).i32(12, 0x01020304).bytes());
        QuickFormatOption o = jni.KX_GetQuickFormatOption("unit-f", S);
        assertEquals(1, o.valid_index);
        assertEquals(-2, o.change_index);
        assertEquals(3, o.priority_mode);
        assertEquals(0x01020304, o.format_mode);
        assertArrayEquals(S.session_id, FakePernix.arg("KX_GetQuickFormatOption", 0, 1));

        o.change_index = 7;
        jni.KX_SetQuickFormatOption("unit-f", S, o);
        assertArrayEquals(Rec.of(16).i32(0, 1).i32(4, 7).i32(8, 3).i32(12, 0x01020304).bytes(),
                          FakePernix.arg("KX_SetQuickFormatOption", 0, 2));
        assertArrayEquals(S.session_id, FakePernix.arg("KX_SetQuickFormatOption", 0, 1));
    }

    @Test
    public void formatStatusListBuildsAllTwoThousandEntries() {
        Rec r = Rec.of(40972).i32(0, 4).i32(4, 55).i32(8, 3600);
        for (int i = 0; i < 2048; i++) {
            int off = 12 + 20 * i;
            r.i32(off, i % 2).i32(off + 4, i).i32(off + 8, 100 - i % 100).i32(off + 12, -i).i32(off + 16, i * 3);
        }
        FakePernix.willWrite("KX_GetFormatStatusList", 1, r.bytes());
        FormatStatusList l = jni.KX_GetFormatStatusList("unit-g");
        assertEquals(4, l.mode);
        assertEquals(55, l.totalpercent);
        assertEquals(3600, l.resttime);
        assertEquals(2048, l.lu.length);
        for (int i : new int[] {0, 1, 777, 2047}) {
            assertEquals(i % 2, l.lu[i].entry);
            assertEquals(i, l.lu[i].status);
            assertEquals(100 - i % 100, l.lu[i].percent);
            assertEquals(-i, l.lu[i].err_code_sense_key);
            assertEquals(i * 3, l.lu[i].err_code_sense_code);
        }
    }

    @Test
    public void quickFormatStatusListBuildsEveryLuWhetherListedOrNot() {
        Rec r = Rec.of(65544).i32(0, 1).i32(4, -1);
        r.i32(8 + 16 * 4095, 1).i32(8 + 16 * 4095 + 4, 2).i32(8 + 16 * 4095 + 8, 99).i32(8 + 16 * 4095 + 12, 12);
        r.i32(8 + 16 * 3 + 12, 4);
        FakePernix.willWrite("KX_GetQuickFormatStatusList", 2, r.bytes());
        QuickFormatStatusList l = jni.KX_GetQuickFormatStatusList("unit-h", S);
        assertEquals(1, l.priority_mode);
        assertEquals(-1, l.format_mode);
        assertEquals(4096, l.lu.length);
        for (int i = 0; i < 4096; i++) assertNotNull(l.lu[i]);
        assertEquals(0, l.lu[0].entry);
        assertEquals(4, l.lu[3].waiting_number);
        assertEquals(1, l.lu[4095].entry);
        assertEquals(2, l.lu[4095].status);
        assertEquals(99, l.lu[4095].percent);
        assertEquals(12, l.lu[4095].waiting_number);
    }

    @Test
    public void parityCorrectionStatusListBuildsAllEntries() {
        Rec r = Rec.of(49152);
        for (int i = 0; i < 4096; i++) r.i32(12 * i, i & 3).i32(12 * i + 4, i % 100).i32(12 * i + 8, 4096 - i);
        FakePernix.willWrite("KX_GetParityCorrectionStatusList", 2, r.bytes());
        ParityCorrectionStatusList l = jni.KX_GetParityCorrectionStatusList("unit-i", S);
        assertEquals(4096, l.lu.length);
        for (int i : new int[] {0, 5, 4095}) {
            assertEquals(i & 3, l.lu[i].status);
            assertEquals(i % 100, l.lu[i].percent);
            assertEquals(4096 - i, l.lu[i].waiting_number);
        }
    }
}
