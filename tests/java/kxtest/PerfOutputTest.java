package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import java.lang.reflect.Field;
import orvane.str.diskarray.KXTime;
import orvane.str.diskarray.PerformanceAll;
import orvane.str.diskarray.PerformanceCSVInfo;
import orvane.str.diskarray.PerformanceCSVOutputOpt;
import orvane.str.diskarray.PerformanceMngInfo;
import orvane.str.diskarray.PerformanceOutputInfo;
import orvane.str.diskarray.PerformanceOutputInfoEx;
import orvane.str.diskarray.PerformanceOutputSpecifyInfo;
import orvane.str.diskarray.PerformanceTime;
import orvane.str.diskarray.StatisticalCommand;
import orvane.str.diskarray.StatisticalCommand_Info;
import org.junit.Test;

/**
 * Summaries, CSV extracts and the management file: the exact bytes each
 * request reaches the library with, the buffers its pointers lead to included.
 * Records that hold pointers have the 32-bit layout in a 32-bit JVM and the
 * natural layout with 8-byte pointers otherwise.
 */
public class PerfOutputTest extends BridgeTest {
    static final int P = "32".equals(System.getProperty("sun.arch.data.model")) ? 4 : 8;
    static final int ALL = PerfStatisticsTest.ALL;
    static final int COMMAND = PerfStatisticsTest.COMMAND;

    static int align(int x) {
        return (x + P - 1) / P * P;
    }

    /** Offset of the first snapshot pointer; the selection flags follow the four pointers. */
    static final int PTRS = align(2);
    static final int SEL = PTRS + 4 * P;

    static byte sel(int i, int seed) {
        return (byte) (i * 13 + seed * 7);
    }

    /** Fills the selection flags of a summary request (PerformanceOutputInfo or its per-controller form). */
    static void select(Object o, int seed) throws ReflectiveOperationException {
        Object[][] bytes = {{"port", 0}, {"rg", 4}, {"lu", 94}, {"backend", 4191}};
        for (Object[] b : bytes) {
            byte[] a = (byte[]) o.getClass().getField((String) b[0]).get(o);
            for (int i = 0; i < a.length; i++) a[i] = sel((int) b[1] + i, seed);
        }
        Object[][] tables = {{"drive", 4199}, {"drive_opr_rate", 4650}};
        for (Object[] t : tables) {
            byte[][] a = (byte[][]) o.getClass().getField((String) t[0]).get(o);
            for (int r = 0; r < 30; r++) for (int c = 0; c < 15; c++) a[r][c] = sel((int) t[1] + 15 * r + c, seed);
        }
        Field cache = o.getClass().getField("cache");
        cache.setInt(o, 0x7F00 + seed);  // only the low byte travels
        o.getClass().getField("processor").setInt(o, -256 + seed + 1);
    }

    /** The 5100 bytes of selection flags select() leads to. */
    static byte[] selection(int seed) {
        byte[] out = new byte[5100];
        for (int i = 0; i < 5100; i++) out[i] = sel(i, seed);
        out[4190] = (byte) seed;
        out[4649] = (byte) (seed + 1);
        return out;
    }

    /**
     * Four snapshots told apart by their first words; the first one full (every field patterned) when
     * full is set, the others without arrays, so that their conversion stops early.
     */
    static PerformanceAll[] snapshots(int seed, boolean full) {
        PerformanceAll[] s = new PerformanceAll[4];
        for (int k = 0; k < 4; k++) {
            if (full && k == 0) {
                s[k] = PerfTree.patterned(PerformanceAll.class, seed);
            } else {
                s[k] = new PerformanceAll();
                s[k].valid = seed + k;
                s[k].support = -(seed + k);
                s[k].get_status = 0x100 * k;
            }
        }
        return s;
    }

    static void assertSnapshots(String fn, int arg, int seed, boolean full) {
        for (int k = 0; k < 4; k++) {
            byte[] want = full && k == 0 ? PerfTree.pattern(PerformanceAll.class, ALL, seed, true)
                : Rec.of(ALL).i32(0, seed + k).i32(4, -(seed + k)).i32(8, 0x100 * k).bytes();
            assertArrayEquals("snapshot " + k, want, FakePernix.pointee(fn, 0, arg, k));
        }
    }

    /** A summary request; its first snapshot full when full is set. */
    static PerformanceOutputInfo outputInfo(boolean full) throws ReflectiveOperationException {
        PerformanceOutputInfo info = new PerformanceOutputInfo();
        info.ctl = new byte[] {1, (byte) 0xFE};
        PerformanceAll[] s = snapshots(20, full);
        info.preinfo0 = s[0];
        info.afterinfo0 = s[1];
        info.preinfo1 = s[2];
        info.afterinfo1 = s[3];
        select(info, 5);
        info.filename = repeat('f', 1100);
        info.count = 7;
        info.mode = -2;
        info.file_fmt_mode = 0x10000;
        return info;
    }

    @Test
    public void outputAllHandsOverTheRequestItsFourSnapshotsAndItsFileName() throws Throwable {
        jni.KX_PerformanceOutputAll(repeat('u', 66), outputInfo(true));
        String fn = "KX_PerformanceOutputAll";
        assertCString(repeat('u', 66), 65, FakePernix.arg(fn, 0, 0));
        Rec r = Rec.wrap(FakePernix.arg(fn, 0, 1));
        int name = align(SEL + 5100);
        assertEquals(P == 4 ? 5136 : 5168, r.size());
        assertArrayEquals(new byte[] {1, (byte) 0xFE}, r.slice(0, 2));
        assertTrue("padding", r.zero(2, PTRS - 2) && r.zero(SEL + 5100, name - SEL - 5100));
        assertArrayEquals(selection(5), r.slice(SEL, 5100));
        assertArrayEquals(new int[] {7, -2, 0x10000}, new int[] {r.i32(name + P), r.i32(name + P + 4), r.i32(name + P + 8)});
        assertSnapshots(fn, 1, 20, true);
        assertCString(repeat('f', 1100), 1024, FakePernix.pointee(fn, 0, 1, 4));

        assertEachAllocationFailureReported(() -> jni.KX_PerformanceOutputAll("u", new PerformanceOutputInfo()));
        FakePernix.willReturn(fn, 1234);
        assertEquals(1234, code(() -> jni.KX_PerformanceOutputAll("u", null)));
        assertEquals(258, code(() -> jni.KX_PerformanceOutputAll(null, null)));
        assertEquals(1, FakePernix.calls(fn));
    }

    @Test
    public void aShortSelectionArrayStopsTheRequestAndItsExceptionReachesJavaUnlessTheLibraryFails() throws Throwable {
        PerformanceOutputInfo info = outputInfo(false);
        info.preinfo0 = info.afterinfo0 = info.preinfo1 = info.afterinfo1 = null;  // not needed here
        info.lu = new byte[10];
        String fn = "KX_PerformanceOutputAll";
        assertEquals(ArrayIndexOutOfBoundsException.class, thrown(() -> jni.KX_PerformanceOutputAll("u", info)).getClass());
        Rec r = Rec.wrap(FakePernix.arg(fn, 0, 1));
        assertArrayEquals("read up to the short array", java.util.Arrays.copyOf(selection(5), 94), r.slice(SEL, 94));
        assertTrue("nothing after it", r.zero(SEL + 94, 5100 - 94));
        assertCString(repeat('f', 1100), 1024, FakePernix.pointee(fn, 0, 1, 4));
        FakePernix.willReturn(fn, 77);
        assertEquals(77, code(() -> jni.KX_PerformanceOutputAll("u", info)));
    }

    @Test
    public void outputAllExCarriesOneSelectionPerControllerAndItsSession() throws Throwable {
        PerformanceOutputInfoEx info = new PerformanceOutputInfoEx();
        info.ctl = new byte[] {0, 1};
        PerformanceAll[] s = snapshots(40, false);
        info.preinfo0 = s[0];
        info.afterinfo0 = s[1];
        info.preinfo1 = s[2];
        info.afterinfo1 = s[3];
        info.specifyinfo = new PerformanceOutputSpecifyInfo[3];  // the third has no place
        for (int i = 0; i < 3; i++) {
            info.specifyinfo[i] = new PerformanceOutputSpecifyInfo();
            select(info.specifyinfo[i], 60 + i);
        }
        info.filename = "/var/perf/out.dat";
        info.count = 3;
        info.mode = 4;
        info.file_fmt_mode = 5;
        String fn = "KX_PerformanceOutputAllEx";
        jni.KX_PerformanceOutputAllEx("unit", SessionTest.session(8), info);
        assertArrayEquals(SessionTest.session(8).session_id, FakePernix.arg(fn, 0, 1));
        Rec r = Rec.wrap(FakePernix.arg(fn, 0, 2));
        int name = align(SEL + 10200);
        assertEquals(P == 4 ? 10236 : 10264, r.size());
        assertArrayEquals(new byte[] {0, 1}, r.slice(0, 2));
        assertArrayEquals(selection(60), r.slice(SEL, 5100));
        assertArrayEquals(selection(61), r.slice(SEL + 5100, 5100));
        assertArrayEquals(new int[] {3, 4, 5}, new int[] {r.i32(name + P), r.i32(name + P + 4), r.i32(name + P + 8)});
        assertSnapshots(fn, 2, 40, false);
        assertCString("/var/perf/out.dat", 1024, FakePernix.pointee(fn, 0, 2, 4));
        info.preinfo0 = info.afterinfo0 = info.preinfo1 = info.afterinfo1 = null;
        assertEachAllocationFailureReported(() -> jni.KX_PerformanceOutputAllEx("u", null, info));
    }

    static StatisticalCommand command(int seed) {
        return PerfTree.patterned(StatisticalCommand.class, seed);
    }

    @Test
    public void summariesHandOverFourCommandRecordsThePathAndTheLuFlags() throws Throwable {
        StatisticalCommand shortList = command(4);
        shortList.lu = java.util.Arrays.copyOf(shortList.lu, 5);
        jni.KX_PerformanceOutput("unit", SessionTest.session(1), repeat('p', 1500), command(1), command(2), shortList, null);
        String fn = "KX_PerformanceOutput";
        assertCString(repeat('p', 1500), 1024, FakePernix.arg(fn, 0, 2));
        assertArrayEquals(PerfTree.pattern(StatisticalCommand.class, COMMAND, 1, true), FakePernix.arg(fn, 0, 3));
        assertArrayEquals(PerfTree.pattern(StatisticalCommand.class, COMMAND, 2, true), FakePernix.arg(fn, 0, 4));
        Rec third = Rec.wrap(FakePernix.arg(fn, 0, 5));
        byte[] full = PerfTree.pattern(StatisticalCommand.class, COMMAND, 4, true);
        assertArrayEquals("five LUs", Rec.wrap(full).slice(0, 80), third.slice(0, 80));
        assertTrue(third.zero(80, 65536 - 80));
        assertArrayEquals("time still read", Rec.wrap(full).slice(65536, 44), third.slice(65536, 44));
        assertArrayEquals(new byte[COMMAND], FakePernix.arg(fn, 0, 6));

        byte[] flags = new byte[5000];
        for (int i = 0; i < flags.length; i++) flags[i] = (byte) (i % 251);
        String lu = "KX_PerformanceOutputLU";
        jni.KX_PerformanceOutputLU("unit", null, "p", command(1), null, null, null, -3, flags, 0x5A5A);
        assertArrayEquals(java.util.Arrays.copyOf(flags, 4096), FakePernix.arg(lu, 0, 8));
        assertEquals(-3, FakePernix.intArg(lu, 0, 7));
        assertEquals(0x5A5A, FakePernix.intArg(lu, 0, 9));
        jni.KX_PerformanceOutputLU("unit", null, "p", null, null, null, null, 0, new byte[] {9, 8, 7}, 0);
        assertArrayEquals(java.util.Arrays.copyOf(new byte[] {9, 8, 7}, 4096), FakePernix.arg(lu, 1, 8));
    }

    @Test
    public void skipTakesTheFullPathAndTheTimeByValue() {
        KXTime t = new KXTime();
        t.tm_sec = 1;
        t.tm_min = 2;
        t.tm_hour = 3;
        t.tm_mday = 4;
        t.tm_mon = 5;
        t.tm_year = 126;
        t.tm_wday = -1;
        t.tm_yday = 300;
        t.tm_isdst = 0x7FFFFFFF;
        String fn = "KX_PerformanceOutputSkip";
        jni.KX_PerformanceOutputSkip(repeat('s', 1030), 11, -12, t);
        assertCString(repeat('s', 1030), 1024, FakePernix.arg(fn, 0, 0));
        assertEquals(11, FakePernix.intArg(fn, 0, 1));
        assertEquals(-12, FakePernix.intArg(fn, 0, 2));
        Rec expected = Rec.of(44);
        int[] v = {1, 2, 3, 4, 5, 126, -1, 300, 0x7FFFFFFF};
        for (int i = 0; i < 9; i++) expected.i32(4 * i, v[i]);
        assertArrayEquals("the last 8 bytes stay zero", expected.bytes(), FakePernix.arg(fn, 0, 3));
    }

    static PerformanceTime time(int base) {
        PerformanceTime t = new PerformanceTime();
        t.year = base;
        t.month = base + 1;
        t.day = base + 2;
        t.hour = base + 3;
        t.minute = base + 4;
        t.second = base + 5;
        return t;
    }

    @Test
    public void csvRequestsTakeAShortPathAndTheirDirectoryOnlyWhereItIsWanted() throws Throwable {
        PerformanceCSVInfo info = new PerformanceCSVInfo();
        info.fromtime = time(100);
        info.totime = time(200);
        info.fromDataNum = 48;
        info.toDataNum = 52;
        info.opt = new PerformanceCSVOutputOpt[] {new PerformanceCSVOutputOpt(), new PerformanceCSVOutputOpt(),
            new PerformanceCSVOutputOpt()};
        for (int i = 0; i < 3; i++) {
            int k = 0;
            for (Field f : PerfTree.fields(PerformanceCSVOutputOpt.class)) f.setInt(info.opt[i], 1000 * (i + 1) + k++);
        }
        info.dirname = "/csv/dir";
        Rec want = Rec.of(align(160 + P));
        for (int i = 0; i < 6; i++) want.i32(4 * i, 100 + i).i32(24 + 4 * i, 200 + i);
        want.i32(48, 48).i32(52, 52);
        for (int i = 0; i < 2; i++) for (int k = 0; k < 13; k++) want.i32(56 + 52 * i + 4 * k, 1000 * (i + 1) + k);

        String fn = "KX_PerformanceOutputCSV";
        jni.KX_PerformanceOutputCSV("abcdef", info);
        assertArrayEquals("cut by the copy limit of 4", cstr("abc", 1024), FakePernix.arg(fn, 0, 0));
        Rec r = Rec.wrap(FakePernix.arg(fn, 0, 1));
        assertEquals(want.size(), r.size());
        assertArrayEquals(want.slice(0, 160), r.slice(0, 160));
        assertFalse("directory buffer handed over", r.zero(160, P));
        assertCString("/csv/dir", 1024, FakePernix.pointee(fn, 0, 1, 0));
        jni.KX_PerformanceOutputCSV(null, info);
        assertTrue("a null path is a null pointer", FakePernix.isNull(fn, 1, 0));
        assertEachAllocationFailureReported(() -> jni.KX_PerformanceOutputCSV("abcdef", info));

        String num = "KX_GetPerformanceCSVNum";
        FakePernix.willWriteInt(num, 2, 4321);
        assertEquals(4321, jni.KX_GetPerformanceCSVNum("xy", info));
        assertArrayEquals(cstr("xy", 1024), FakePernix.arg(num, 0, 0));
        assertArrayEquals("no directory pointer", want.bytes(), FakePernix.arg(num, 0, 1));
        assertNull(FakePernix.pointee(num, 0, 1, 0));
        jni.KX_GetPerformanceCSVNum(null, info);
        assertTrue("a null path is a null pointer", FakePernix.isNull(num, 1, 0));
    }

    static final Object[][] MNG_TEXT = {{"dampver", 0, 16}, {"unitname", 16, 65}, {"microver", 81, 9},
        {"serialno", 90, 10}, {"structver", 164, 8}};
    static final String[] MNG_INTS = {"kx_type", "device_type", "portMaxCount", "rgMaxCount", "luMaxCount",
        "cacheMaxCount", "processorMaxCount", "hdd_hdu_count", "hdd_unit_count", "backendMaxCount",
        "cachepartitionMaxCount", "ctlcond", "ctl0", "ctl1", "intervaltime", "cfg"};

    @Test
    public void managementRecordGoesToTheLibraryAndComesBack() throws Throwable {
        PerformanceMngInfo m = new PerformanceMngInfo();
        Rec want = Rec.of(220);
        for (Object[] t : MNG_TEXT) {
            String text = repeat(((String) t[0]).charAt(0), (int) t[2] + 3);
            PerformanceMngInfo.class.getField((String) t[0]).set(m, text);
            want.put((int) t[1], cstr(text, (int) t[2]));
        }
        for (int k = 0; k < MNG_INTS.length; k++) {
            PerformanceMngInfo.class.getField(MNG_INTS[k]).setInt(m, -k * 1001);
            want.i32(100 + 4 * k, -k * 1001);
        }
        m.fromtime = time(10);
        m.totime = time(20);
        for (int i = 0; i < 6; i++) want.i32(172 + 4 * i, 10 + i).i32(196 + 4 * i, 20 + i);

        String fn = "KX_PerformanceDataInitialize";
        jni.KX_PerformanceDataInitialize(SessionTest.session(6), "mngfile", m);
        assertArrayEquals(SessionTest.session(6).session_id, FakePernix.arg(fn, 0, 0));
        assertArrayEquals(cstr("mng", 1024), FakePernix.arg(fn, 0, 1));
        assertArrayEquals(want.bytes(), FakePernix.arg(fn, 0, 2));

        // back: a text that fills its field to the last byte ends there
        Rec out = Rec.wrap(want.bytes().clone()).str(81, "MICRO-V09");
        String in = "KX_PerformanceInputMngFile";
        FakePernix.willWrite(in, 1, out.bytes());
        PerformanceMngInfo back = jni.KX_PerformanceInputMngFile(null);
        assertTrue(FakePernix.isNull(in, 0, 0));
        assertEquals("MICRO-V09", back.microver);
        assertEquals(repeat('u', 64), back.unitname);
        assertEquals(repeat('s', 7), back.structver);
        for (int k = 0; k < MNG_INTS.length; k++) assertEquals(-k * 1001, PerformanceMngInfo.class.getField(MNG_INTS[k]).getInt(back));
        assertEquals(15, back.fromtime.second);
        assertEquals(20, back.totime.year);
    }

    @Test
    public void aCommandRecordWithAShortLuArrayConvertsOnlyWhatIsThere() {
        StatisticalCommand c = new StatisticalCommand();
        c.lu = new StatisticalCommand_Info[] {new StatisticalCommand_Info(), null};
        c.lu[0].write_cache = 9;
        jni.KX_PerformanceOutput("u", null, "p", c, c, c, c);
        Rec r = Rec.wrap(FakePernix.arg("KX_PerformanceOutput", 0, 3));
        assertEquals(9, r.i32(12));
        assertTrue(r.zero(16, COMMAND - 16));
    }
}
