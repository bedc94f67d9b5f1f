package kxtest;

import static kxtest.RaidGroupTest.S;
import static kxtest.RaidGroupTest.assertFields;
import static kxtest.RaidGroupTest.fill;
import static kxtest.RaidGroupTest.put;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import java.util.Arrays;
import orvane.str.diskarray.*;
import org.junit.Test;

public class FormatTest extends BridgeTest {
    static final String[] QUICK_OPTION = {"valid_index", "change_index", "priority_mode", "format_mode"};
    static final String[] LU_FORMAT_STATUS = {"status", "percent", "err_code_sense_key", "err_code_sense_code"};
    static final String[] FORMAT_STATUS = {"entry", "status", "percent", "err_code_sense_key", "err_code_sense_code"};
    static final String[] QUICK_STATUS = {"entry", "status", "percent", "waiting_number"};
    static final String[] CORRECTION_STATUS = {"status", "percent", "waiting_number"};

    @Test
    public void formatStatusCallsReturnTheIntTheLibraryWrites() {
        FakePernix.willWriteInt("KX_LogicalUnitFormatStatus", 2, 87);
        assertEquals(87, jni.KX_LogicalUnitFormatStatus("u", 2047));
        FakePernix.willWriteInt("KX_LogicalUnitFormatImmediateCTL", 3, -1);
        assertEquals(-1, jni.KX_LogicalUnitFormatImmediateCTL("u", 5, 1));
    }

    @Test
    public void luFormatStatusListHasItsOwnFrame() throws Throwable {
        Rec r = put(put(Rec.of(32768), 0, 0, LU_FORMAT_STATUS), 16 * 2047, 2047, LU_FORMAT_STATUS);
        FakePernix.willWrite("KX_LogicalUnitFormatStatusList", 1, r.bytes());
        LuFormatStatusList l = jni.KX_LogicalUnitFormatStatusList(null);
        assertEquals(2048, l.lu.length);
        assertFields(l.lu[0], 0, LU_FORMAT_STATUS);
        assertFields(l.lu[2047], 2047, LU_FORMAT_STATUS);
    }

    @Test
    public void byteMapsAreSentAtTheirFullLengthOnly() {
        FormatList l = new FormatList();
        for (int i = 0; i < 2048; i++) l.lu[i] = (byte) (i * 7 + 1);
        jni.KX_EntryFormatList("u", l);
        assertArrayEquals(l.lu, FakePernix.arg("KX_EntryFormatList", 0, 1));
        byte[] longer = Arrays.copyOf(l.lu, 3000);
        longer[2048] = 9;
        l.lu = longer;  // only its first 2048 bytes count
        jni.KX_EntryFormatList("u", l);
        assertArrayEquals(Arrays.copyOf(longer, 2048), FakePernix.arg("KX_EntryFormatList", 1, 1));
        QuickFormatList q = new QuickFormatList();
        q.lu[0] = 1;
        q.lu[4095] = (byte) 0xFF;
        jni.KX_EntryQuickFormatList("u", S, q);
        assertArrayEquals(q.lu, FakePernix.arg("KX_EntryQuickFormatList", 0, 2));

        // A short map fails its conversion, yet the library is called with the
        // empty record: on success its array-bounds error reaches the caller, an
        // error code replaces it.
        l.lu = new byte[] {1, 1, 1};
        assertEquals(ArrayIndexOutOfBoundsException.class, thrown(() -> jni.KX_EntryFormatList("u", l)).getClass());
        assertArrayEquals(new byte[2048], FakePernix.arg("KX_EntryFormatList", 2, 1));
        FakePernix.willReturn("KX_EntryFormatList", 41);
        assertEquals(41, code(() -> jni.KX_EntryFormatList("u", l)));
    }

    @Test
    public void parityCorrectionListIsModeCountAnd4096Ints() {
        ParityCorrectionList p = new ParityCorrectionList();
        p.correction_mode = 2;
        p.lu_count = 4097;  // not compared with the list
        for (int i = 0; i < 4096; i++) p.lu[i] = 100000 + i;
        jni.KX_EntryParityCorrectionList("u", S, p);
        Rec expected = Rec.of(16392).i32(0, 2).i32(4, 4097);
        for (int i = 0; i < 4096; i++) expected.i32(8 + 4 * i, 100000 + i);
        assertArrayEquals(expected.bytes(), FakePernix.arg("KX_EntryParityCorrectionList", 0, 2));

    }

    @Test
    public void quickFormatOptionTravelsBothWays() {
        FakePernix.willWrite("KX_GetQuickFormatOption", 2, put(Rec.of(16), 0, 6, QUICK_OPTION).bytes());
        assertFields(jni.KX_GetQuickFormatOption("u", S), 6, QUICK_OPTION);
        jni.KX_SetQuickFormatOption("u", S, fill(new QuickFormatOption(), 8, QUICK_OPTION));
        assertArrayEquals(put(Rec.of(16), 0, 8, QUICK_OPTION).bytes(), FakePernix.arg("KX_SetQuickFormatOption", 0, 2));
    }

    @Test
    public void statusListsBuildEveryEntryWhateverItSays() {
        Rec f = put(put(Rec.of(40972).i32(0, 4).i32(4, 55).i32(8, 3600), 12, 0, FORMAT_STATUS),
                    12 + 20 * 2047, 2047, FORMAT_STATUS);
        FakePernix.willWrite("KX_GetFormatStatusList", 1, f.bytes());
        FormatStatusList fl = jni.KX_GetFormatStatusList("u");
        assertArrayEquals(new int[] {4, 55, 3600, 2048},
                          new int[] {fl.mode, fl.totalpercent, fl.resttime, fl.lu.length});
        assertFields(fl.lu[0], 0, FORMAT_STATUS);
        assertFields(fl.lu[2047], 2047, FORMAT_STATUS);
        assertEquals(0, fl.lu[1000].entry);

        Rec q = put(put(Rec.of(65544).i32(0, 1).i32(4, -1), 8, 0, QUICK_STATUS), 8 + 16 * 4095, 4095, QUICK_STATUS);
        FakePernix.willWrite("KX_GetQuickFormatStatusList", 2, q.bytes());
        QuickFormatStatusList ql = jni.KX_GetQuickFormatStatusList("u", S);
        assertArrayEquals(new int[] {1, -1, 4096}, new int[] {ql.priority_mode, ql.format_mode, ql.lu.length});
        assertFields(ql.lu[0], 0, QUICK_STATUS);
        assertFields(ql.lu[4095], 4095, QUICK_STATUS);
        assertEquals(0, ql.lu[3].entry);

        Rec c = put(put(Rec.of(49152), 0, 0, CORRECTION_STATUS), 12 * 4095, 4095, CORRECTION_STATUS);
        FakePernix.willWrite("KX_GetParityCorrectionStatusList", 2, c.bytes());
        ParityCorrectionStatusList cl = jni.KX_GetParityCorrectionStatusList("u", S);
        assertEquals(4096, cl.lu.length);
        assertFields(cl.lu[0], 0, CORRECTION_STATUS);
        assertFields(cl.lu[4095], 4095, CORRECTION_STATUS);
    }
}
