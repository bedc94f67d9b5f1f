package kxtest;

import static kxtest.RaidGroupTest.S;
import static kxtest.RaidGroupTest.assertFields;
import static kxtest.RaidGroupTest.fill;
import static kxtest.RaidGroupTest.put;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import orvane.str.diskarray.*;
import org.junit.Test;

/** Controller and enclosure microcode, boot options. */
public class FirmwareTest extends BridgeTest {
    static final String[] BOOT_INTS = {"support_index", "valid_index", "startup_attr", "data_share", "delay_time",
        "drvdetachmode"};
    static final String[] TIME = {"year", "month", "day", "hour", "minute", "second"};

    @Test
    public void intResultsAreWhatTheLibraryStores() {
        FakePernix.willWriteInt("KX_MicroFileConcat", 4, 123456);
        assertEquals(123456, jni.KX_MicroFileConcat("u", S, "/p", 1));
        FakePernix.willWriteInt("KX_GetMicroDownloadCount", 1, 37);
        assertEquals(37, jni.KX_GetMicroDownloadCount("u"));
        FakePernix.willWriteInt("KX_GetMicroDownloadCountEx", 2, -5);
        assertEquals(-5, jni.KX_GetMicroDownloadCountEx("u", 2));
        FakePernix.willWriteInt("KX_GetENCMicroDownloadCount", 2, 0x7FFFFFFF);
        assertEquals(0x7FFFFFFF, jni.KX_GetENCMicroDownloadCount("u", S));
        FakePernix.willWriteInt("KX_ENCMicroDownload", 4, 9);
        assertEquals(9, jni.KX_ENCMicroDownload("u", S, 1, 2));
    }

    @Test
    public void nativesWithoutAUnitAnswerTheirTextsAndRecords() {
        // The revision text: a buffer filled to its last byte is cut there.
        FakePernix.willWrite("KX_GetNewMicroRevision", 0, "0950/A-ZZZZZZ".getBytes());
        assertEquals("0950/A-ZZZZZ", jni.KX_GetNewMicroRevision());
        FakePernix.reset();
        FakePernix.willWrite("KX_GetNewMicroRevision", 0, cstr("0977/B", 12));
        assertEquals("0977/B", jni.KX_GetNewMicroRevision());
        assertArrayEquals(new byte[12], FakePernix.arg("KX_GetNewMicroRevision", 0, 0));

        // The image description: nine text bytes at most, the three behind them ignored.
        FakePernix.willWrite("KX_GetMicroFileInformation", 0,
                             Rec.of(20).str(0, "0950/A-XYQQQ").i32(12, 1).i32(16, 600).bytes());
        MicroFileInformation m = jni.KX_GetMicroFileInformation();
        assertEquals("0950/A-XY", m.micro);
        assertEquals(1, m.valid);
        assertEquals(600, m.booting_wait);

        FakePernix.willWrite("KX_GetENCMicroInformation", 0, encMicroInformation(3).bytes());
        assertEncMicroInformation(3, jni.KX_GetENCMicroInformation());
    }

    @Test
    public void enclosureImageNativesTestThePathOnceTheSessionRecordExists() {
        // Enclosure image: the session record is made (and released) first, so
        // its failure is what a null path reports when memory is short.
        for (UnitCall c : new UnitCall[] {
                u -> jni.KX_ENCMicroFileConcat(u, S, null), u -> jni.KX_ENCMicroFileConcatEx(u, S, null, 2)}) {
            FakePernix.reset();
            assertEquals(258, code(() -> c.run("u")));
            assertEquals(1, FakePernix.allocations());
            assertEquals(0, FakePernix.liveBlocks());
            assertEquals(0, FakePernix.log().length);
            FakePernix.reset();
            FakePernix.failAllocation(1);
            assertOutOfMemory(() -> c.run("u"));
            FakePernix.reset();
            assertEquals(258, code(() -> c.run(null)));
            assertEquals(0, FakePernix.allocations());
        }
        // An empty path goes on as an empty string.
        jni.KX_ENCMicroFileConcat("u", S, "");
        assertArrayEquals(new byte[1024], FakePernix.arg("KX_ENCMicroFileConcat", 0, 2));
    }

    /** An ENCRevision whose five texts fill their fields to the last byte. */
    static Rec revision(Rec r, int off, int seed) {
        r.i32(off, seed).str(off + 4, ("M" + seed + "MMMMMM").substring(0, 7));
        r.str(off + 11, ("B" + seed + "BB").substring(0, 3)).str(off + 14, ("E" + seed + "EE").substring(0, 3));
        r.str(off + 17, ("R" + seed + "RRRRRR").substring(0, 7)).str(off + 24, ("S" + seed + "SSSSSSS").substring(0, 8));
        return r;
    }

    static void assertRevision(int seed, ENCRevision r) {
        String s = String.valueOf(seed);
        assertEquals(seed, r.valid_index);
        assertEquals(("M" + s + "MMMMMM").substring(0, 7), r.rev_main);
        assertEquals(("B" + s + "BB").substring(0, 3), r.rev_boot);
        assertEquals(("E" + s + "EE").substring(0, 3), r.rev_ectl);
        assertEquals(("R" + s + "RRRRRR").substring(0, 7), r.rev_rtr);
        assertEquals(("S" + s + "SSSSSSS").substring(0, 8), r.rev_ses);
    }

    static Rec microRevision(Rec r, int off, int seed) {
        return revision(revision(revision(r, off, seed), off + 32, seed + 1), off + 64, seed + 2);
    }

    static void assertMicroRevision(int seed, ENCMicroRevision m) {
        assertRevision(seed, m.bas_rev);
        assertRevision(seed + 1, m.ext_rev);
        assertEquals(1, m.ext_rev_plus.length);
        assertRevision(seed + 2, m.ext_rev_plus[0]);
    }

    static Rec encMicroInformation(int seed) {
        return microRevision(Rec.of(108).i32(0, seed).i32(4, -seed).i32(8, seed * 3), 12, seed);
    }

    static void assertEncMicroInformation(int seed, ENCMicroInformation e) {
        assertArrayEquals(new int[] {seed, -seed, seed * 3}, new int[] {e.kx_type, e.device_type, e.micro_type});
        assertMicroRevision(seed, e.read_rev);
    }

    @Test
    public void enclosureRevisionsAndStatusListAreBuiltInFull() {
        FakePernix.willWrite("KX_GetENCMicroInformationEx", 2, encMicroInformation(5).bytes());
        assertEncMicroInformation(5, jni.KX_GetENCMicroInformationEx("u", S));

        Rec r = microRevision(Rec.of(2392), 0, 1).i32(96, -7);
        put(r, 100, 2, TIME);
        put(r, 124, 3, TIME);
        r.i32(148, 30).i32(152, 90).i32(156, 1);
        for (int e = 0; e < 2; e++) revision(r.i32(160 + 36 * e, 40 + e), 164 + 36 * e, 40 + e);
        for (int u = 0; u < 30; u++)
            for (int e = 0; e < 2; e++) revision(r.i32(232 + 72 * u + 36 * e, u * 2 + e), 236 + 72 * u + 36 * e, u * 2 + e);
        FakePernix.willWrite("KX_GetENCStatusList", 2, r.bytes());
        ENCStatusList l = jni.KX_GetENCStatusList("u", S);
        assertMicroRevision(1, l.download_rev);
        assertArrayEquals(new int[] {-7, 30, 90, 1},
                          new int[] {l.exec_status, l.replacetime_min, l.replacetime_max, l.validCTU});
        assertFields(l.start_time, 2, TIME);
        assertFields(l.now_time, 3, TIME);
        assertEquals(2, l.ctu.enc.length);
        for (int e = 0; e < 2; e++) {
            assertEquals(40 + e, l.ctu.enc[e].status);
            assertRevision(40 + e, l.ctu.enc[e].enc_rev);
        }
        assertEquals(30, l.unit.length);
        for (int u = 0; u < 30; u++) {
            assertEquals(2, l.unit[u].enc.length);
            for (int e = 0; e < 2; e++) {
                assertEquals(u * 2 + e, l.unit[u].enc[e].status);
                assertRevision(u * 2 + e, l.unit[u].enc[e].enc_rev);
            }
        }

        // A unit that reports nothing: every entry is still there, texts empty.
        FakePernix.reset();
        ENCStatusList empty = jni.KX_GetENCStatusList("u", S);
        assertEquals(30, empty.unit.length);
        assertEquals("", empty.unit[29].enc[1].enc_rev.rev_ses);
    }

    static BootOption bootOption(String vendor, String product, String rom, String ram) {
        BootOption b = fill(new BootOption(), 4, BOOT_INTS);
        b.vendor = vendor;
        b.product = product;
        b.rom_micro = rom;
        b.ram_micro = ram;
        return b;
    }

    @Test
    public void bootOptionTravelsBothWaysWithItsTextsCut() {
        Rec r = put(Rec.of(56), 0, 4, BOOT_INTS).str(24, "VENDOR12").str(33, "PRODUCT-ABCDEFGHI")
            .str(50, "R1").str(53, "A2");
        FakePernix.willWrite("KX_GetBootOption", 2, r.bytes());
        BootOption got = jni.KX_GetBootOption("u", S);  // a text filling its field is read to its end
        assertFields(got, 4, BOOT_INTS);
        assertArrayEquals(new String[] {"VENDOR12", "PRODUCT-ABCDEFGHI", "R1", "A2"},
                          new String[] {got.vendor, got.product, got.rom_micro, got.ram_micro});

        // Too long texts are cut to their fields, NUL included.
        BootOption b = bootOption("VENDOR-123456", "PRODUCT-0123456789", "ROM", "RAMX");
        jni.KX_SetBootOption("u", S, b);
        jni.KX_TestBootOption("u", S, b);
        Rec expected = put(Rec.of(56), 0, 4, BOOT_INTS).str(24, "VENDOR-1").str(33, "PRODUCT-01234567")
            .str(50, "RO").str(53, "RA");
        assertArrayEquals(expected.bytes(), FakePernix.arg("KX_SetBootOption", 0, 2));
        assertArrayEquals(expected.bytes(), FakePernix.arg("KX_TestBootOption", 0, 2));

        // A null text stops the reading there, the library is called all the same.
        jni.KX_TestBootOption("u", S, bootOption("V", null, "R", "A"));
        assertArrayEquals(put(Rec.of(56), 0, 4, BOOT_INTS).str(24, "V").bytes(),
                          FakePernix.arg("KX_TestBootOption", 1, 2));
    }

    @Test
    public void downloadOptionAndReplaceInformation() {
        FakePernix.willWrite("KX_GetENCDownloadOption", 2, Rec.of(4).i32(0, -2).bytes());
        assertEquals(-2, jni.KX_GetENCDownloadOption("u", S).auto_download_mode);
        ENCDownloadOption o = new ENCDownloadOption();
        o.auto_download_mode = 0x01020304;
        jni.KX_SetENCDownloadOption("u", S, o);
        assertArrayEquals(Rec.of(4).i32(0, 0x01020304).bytes(), FakePernix.arg("KX_SetENCDownloadOption", 0, 2));

        FakePernix.willWrite("KX_MicroReplaceEx", 3, Rec.of(12).i32(0, 1).i32(4, -1).i32(8, 2).bytes());
        MicroReplaceInformation m = jni.KX_MicroReplaceEx("u", S, 5);
        assertArrayEquals(new int[] {1, -1, 2}, new int[] {m.valid, m.WaitCancelreq, m.ReplaceCTL});
    }
}
