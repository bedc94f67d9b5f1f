package kxtest;

import static kxtest.LogicalUnitTest.LOGICAL_UNIT;
import static kxtest.RaidGroupTest.RAID_GROUP;
import static kxtest.RaidGroupTest.RG_DETAIL;
import static kxtest.RaidGroupTest.RG_DRIVE_INFO;
import static kxtest.RaidGroupTest.S;
import static kxtest.RaidGroupTest.assertFields;
import static kxtest.RaidGroupTest.fill;
import static kxtest.RaidGroupTest.put;
import static kxtest.RaidGroupTest.value;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertSame;

import orvane.str.diskarray.*;
import org.junit.Test;

/**
 * Pools, virtual volumes, unified LUs, labels and the RAID/LU configuration
 * export and import; also the frame table of the whole family (the wizard and
 * LU cache natives included).
 */
public class PoolsTest extends BridgeTest {
    static final String[] CHG_POOL = {"ctl_no", "pool_no", "poolinfo_chg_index", "threshold"};
    static final String[] INTEGRATION_SET = {"operation", "parent_lun", "child_lun", "child_count"};
    static final String[] UNITE_HEAD = {"unite_info", "status", "capacity", "child_lu_count"};
    static final String[] UNITE_LU2 = {"unite_info", "status", "capacity", "child_lu_count", "next_lun"};
    static final String[] SPARE_DISK = {"unit_no", "hdu_no"};

    /** The path argument as a 1024-byte buffer. */
    static final String P = "/var/tmp/config.dat";

    static int[] ints(int n, int seed) {
        int[] a = new int[n];
        for (int i = 0; i < n; i++) a[i] = value(seed, i);
        return a;
    }

    static Rec putInts(Rec rec, int off, int[] a) {
        for (int i = 0; i < a.length; i++) rec.i32(off + 4 * i, a[i]);
        return rec;
    }

    /**
     * Every native of the family but the label lists: its library function, a call, and what
     * follows the unit name in the library call (S for the session, P for the path buffer, ints
     * by value; records are checked by the tests of their own).
     */
    Object[][] natives() {
        return new Object[][] {
            RaidGroupTest.row("KX_GetPoolInformation", u -> jni.KX_GetPoolInformation(u, S), S),
            RaidGroupTest.row("KX_ChangePoolInformation", u -> jni.KX_ChangePoolInformation(u, S, new ChgPoolInfo()), S),
            RaidGroupTest.row("KX_PoolLUAdd", u -> jni.KX_PoolLUAdd(u, S, 1, -2, 3), S, 1, -2, 3),
            RaidGroupTest.row("KX_PoolLUAddList", u -> jni.KX_PoolLUAddList(u, S, 7, -8, new PoolLuAddList()), S, 7, -8),
            RaidGroupTest.row("KX_PoolLUAllDelete", u -> jni.KX_PoolLUAllDelete(u, S, 4, 0x10000), S, 4, 0x10000),
            RaidGroupTest.row("KX_CreateVVOL", u -> jni.KX_CreateVVOL(u, S, 9, 10, -11), S, 9, 10, -11),
            RaidGroupTest.row("KX_DeleteVVOL", u -> jni.KX_DeleteVVOL(u, S, 12, 13), S, 12, 13),
            RaidGroupTest.row("KX_SetIntegrationLU", u -> jni.KX_SetIntegrationLU(u, S, new IntegrationLUSet()), S),
            RaidGroupTest.row("KX_IntegrationLUInfo", u -> jni.KX_IntegrationLUInfo(u)),
            RaidGroupTest.row("KX_IntegrationLUInfo2", u -> jni.KX_IntegrationLUInfo2(u, S), S),
            RaidGroupTest.row("KX_GetIntegrationPinInfo", u -> jni.KX_GetIntegrationPinInfo(u, S), S),
            RaidGroupTest.row("KX_RaidLuExport", u -> jni.KX_RaidLuExport(u, S, P), S, P),
            RaidGroupTest.row("KX_RaidLuImportEx", u -> jni.KX_RaidLuImportEx(u, S, P), S, P),
            RaidGroupTest.row("KX_RaidLuImport", u -> jni.KX_RaidLuImport(u, P), P),
            RaidGroupTest.row("KX_GetWizardParam", u -> jni.KX_GetWizardParam(u, P, -5), P, -5),
            RaidGroupTest.row("KX_SetWizardParam", u -> jni.KX_SetWizardParam(u, new WizardParam(), P, 6), null, P, 6),
            RaidGroupTest.row("KX_TestWizardParam", u -> jni.KX_TestWizardParam(u, new WizardParam(), P, 7), null, P, 7),
            RaidGroupTest.row("KX_GetNowWZParam", u -> jni.KX_GetNowWZParam(u, 8), 8),
            RaidGroupTest.row("KX_SetNowWZParam", u -> jni.KX_SetNowWZParam(u, 9, new NowWZParameter()), 9),
            RaidGroupTest.row("KX_LuWizardOutput", u -> jni.KX_LuWizardOutput(u, S, P, new LuWZSetContents()), S, P),
            RaidGroupTest.row("KX_GetPrefetchInformation", u -> jni.KX_GetPrefetchInformation(u, S), S),
            RaidGroupTest.row("KX_SetPrefetchInformation",
                u -> jni.KX_SetPrefetchInformation(u, S, new PrefetchInformation()), S),
            RaidGroupTest.row("KX_GetLuCachePartition", u -> jni.KX_GetLuCachePartition(u, S), S),
            RaidGroupTest.row("KX_SetLuCachePartition", u -> jni.KX_SetLuCachePartition(u, S, new LuCachePartition()), S),
            RaidGroupTest.row("KX_GetPrefetchTuning", u -> jni.KX_GetPrefetchTuning(u, S), S),
            RaidGroupTest.row("KX_SetPrefetchTuning", u -> jni.KX_SetPrefetchTuning(u, S, new PrefetchTuning()), S),
            RaidGroupTest.row("KX_GetTurboLU", u -> jni.KX_GetTurboLU(u, S), S),
            RaidGroupTest.row("KX_SetTurboLU", u -> jni.KX_SetTurboLU(u, S, PoolsCacheTest.turbo(1, 2)), S),
        };
    }

    static boolean turbo(String fn) {
        return fn.endsWith("TurboLU");
    }

    @Test
    public void everyNativePassesItsArgumentsInOrder() throws Throwable {
        for (Object[] r : natives()) {
            String fn = (String) r[0];
            RaidGroupTest.UnitCall call = (RaidGroupTest.UnitCall) r[1];
            FakePernix.reset();
            call.run("unit-" + fn);
            assertEquals(fn, 1, FakePernix.calls(fn));
            assertCString("unit-" + fn, 65, FakePernix.arg(fn, 0, 0));
            for (int i = 2; i < r.length; i++) {
                if (r[i] == null) continue;  // a record, checked elsewhere
                if (r[i] == S) assertArrayEquals(fn, S.session_id, FakePernix.arg(fn, 0, i - 1));
                else if (r[i] == P) assertCString(P, 1024, FakePernix.arg(fn, 0, i - 1));
                else assertEquals(fn, r[i], FakePernix.intArg(fn, 0, i - 1));
            }
            if (!turbo(fn)) continue;

            // The turbo-LU pair, outside the common frame: no null test (an empty
            // name), yet the library's codes unchanged, 256 quietly, every
            // allocation failure reported.
            call.run(null);
            assertCString("", 65, FakePernix.arg(fn, 1, 0));
            FakePernix.willReturn(fn, -77);
            assertEquals(fn, -77, code(() -> call.run("u")));
            FakePernix.willReturn(fn, 256);
            call.run("u");
            assertEachAllocationFailureReported(() -> call.run("u"));
        }
    }

    @Test
    public void pathsAreCutTo1023Bytes() {
        String longPath = "/" + repeat('p', 1100);
        jni.KX_RaidLuExport("u", S, longPath);
        assertCString(longPath, 1024, FakePernix.arg("KX_RaidLuExport", 0, 2));
        jni.KX_RaidLuExport("u", S, "");  // an empty path goes as an empty string
        assertCString("", 1024, FakePernix.arg("KX_RaidLuExport", 1, 2));
    }

    @Test
    public void poolInformationHoldsTwoControllersOfOnePoolEach() {
        FakePernix.willWrite("KX_GetPoolInformation", 2, Rec.of(596).i32(0, 3).i32(4, 11).i32(300, -12).bytes());
        PoolInfo info = jni.KX_GetPoolInformation("u", S);
        assertEquals(3, info.option);
        assertEquals(2, info.ctl.length);
        assertArrayEquals(new int[] {11, -12}, new int[] {info.ctl[0].pool_enable_count, info.ctl[1].pool_enable_count});
        for (PoolCtlInfo c : info.ctl) {
            assertEquals(1, c.pool.length);
            assertNotNull(c.pool[0]);
        }

        jni.KX_ChangePoolInformation("u", S, fill(new ChgPoolInfo(), 4, CHG_POOL));
        assertArrayEquals(put(Rec.of(16), 0, 4, CHG_POOL).bytes(), FakePernix.arg("KX_ChangePoolInformation", 0, 2));
    }

    @Test
    public void intListsTravelAtTheirCapacityFromIndexZero() {
        PoolLuAddList list = new PoolLuAddList();
        list.lu_count = 64;
        list.lu = ints(70, 1);  // longer: the first 64 only
        jni.KX_PoolLUAddList("u", S, 1, 2, list);
        assertArrayEquals(putInts(Rec.of(260).i32(0, 64), 4, ints(64, 1)).bytes(),
                          FakePernix.arg("KX_PoolLUAddList", 0, 4));

        IntegrationLUSet set = fill(new IntegrationLUSet(), 2, INTEGRATION_SET);
        set.child_lu = ints(127, 3);
        jni.KX_SetIntegrationLU("u", S, set);
        assertArrayEquals(putInts(put(Rec.of(524), 0, 2, INTEGRATION_SET), 16, ints(127, 3)).bytes(),
                          FakePernix.arg("KX_SetIntegrationLU", 0, 2));

        // Shorter: nothing of it is copied, the library still gets the record and Java the
        // JVM's own bounds error.
        set.child_lu = new int[126];
        Throwable t = thrown(() -> jni.KX_SetIntegrationLU("u", S, set));
        assertEquals(ArrayIndexOutOfBoundsException.class, t.getClass());
        assertArrayEquals(put(Rec.of(524), 0, 2, INTEGRATION_SET).bytes(), FakePernix.arg("KX_SetIntegrationLU", 1, 2));
    }

    @Test
    public void unifiedLuReportsAreBuiltAtFullCapacity() {
        Rec info = Rec.of(1056772).i32(0, 5);
        put(info, 4, 1, UNITE_HEAD);
        putInts(info, 4 + 16, ints(512, 2));
        put(info, 4 + 511 * 2064, 3, UNITE_HEAD);
        putInts(info, 4 + 511 * 2064 + 16, ints(512, 4));
        FakePernix.willWrite("KX_IntegrationLUInfo", 1, info.bytes());
        IntegrationLUInfo got = jni.KX_IntegrationLUInfo("unit");
        assertEquals(5, got.integration_lu);
        assertEquals(512, got.unite_info.length);
        for (UniteLU u : got.unite_info) assertEquals(512, u.child_lun.length);
        assertFields(got.unite_info[0], 1, UNITE_HEAD);
        assertArrayEquals(ints(512, 2), got.unite_info[0].child_lun);
        assertFields(got.unite_info[511], 3, UNITE_HEAD);
        assertArrayEquals(ints(512, 4), got.unite_info[511].child_lun);
        assertArrayEquals(new int[512], got.unite_info[200].child_lun);

        Rec info2 = putInts(Rec.of(98312).i32(0, 6).i32(4, 7), 8, ints(4096, 5));
        put(put(info2, 16392, 6, UNITE_LU2), 16392 + 4095 * 20, 7, UNITE_LU2);
        FakePernix.willWrite("KX_IntegrationLUInfo2", 2, info2.bytes());
        IntegrationLUInfo2 got2 = jni.KX_IntegrationLUInfo2("u", S);
        assertArrayEquals(new int[] {6, 7, 4096}, new int[] {got2.integration_lu, got2.parent_count, got2.unite_info.length});
        assertArrayEquals(ints(4096, 5), got2.parent_lu);
        assertFields(got2.unite_info[0], 6, UNITE_LU2);
        assertFields(got2.unite_info[4095], 7, UNITE_LU2);

        Rec pin = putInts(putInts(Rec.of(32772).i32(0, -1), 4, ints(4096, 8)), 16388, ints(4096, 9));
        FakePernix.willWrite("KX_GetIntegrationPinInfo", 2, pin.bytes());
        PINInformation p = jni.KX_GetIntegrationPinInfo("u", S);
        assertEquals(-1, p.unite_option);
        assertArrayEquals(ints(4096, 8), p.single_lu);
        assertArrayEquals(ints(4096, 9), p.unite_lu);
    }

    static Rec labels(int n, int count) {
        Rec r = Rec.of(16 * n);
        for (int i = 0; i < n; i++) r.str(16 * i, "old" + i).str(16 * i + 8, "new" + i);
        return r;
    }

    @Test
    public void labelListsHoldExactlyTheLibrarysCountAndAllocateNothing() {
        FakePernix.willWrite("KX_GetLabelList", 0, labels(20, 3).str(16, "ABCDEFGH").bytes());
        FakePernix.willWriteInt("KX_GetLabelList", 1, 3);
        KXLabel[] got = jni.KX_GetLabelList();
        assertEquals(3, got.length);
        assertArrayEquals(new String[] {"old0", "new0", "ABCDEFGH", "new1", "old2", "new2"},
            new String[] {got[0].oldlabel, got[0].newlabel, got[1].oldlabel, got[1].newlabel, got[2].oldlabel,
                got[2].newlabel});
        assertEquals(0, FakePernix.allocations());

        // A count of 0 is an empty array; a count past the table (20 or 64) leaves the rest null.
        FakePernix.willWriteInt("KX_GetLabelList", 1, 0);
        assertEquals(0, jni.KX_GetLabelList().length);
        FakePernix.willWriteInt("KX_GetLabelList", 1, 21);
        KXLabel[] one = jni.KX_GetLabelList();
        assertEquals("new19", one[19].newlabel);
        assertNull(one[20]);
        FakePernix.willWrite("KX_GetLabelList2", 0, labels(64, 64).bytes());
        FakePernix.willWriteInt("KX_GetLabelList2", 1, 70);
        KXLabel[] two = jni.KX_GetLabelList2();
        assertEquals(70, two.length);
        assertEquals("old63", two[63].oldlabel);
        for (int i = 64; i < 70; i++) assertNull(two[i]);

        // Never a DiskArrayException of their own: a negative count is the JVM's error.
        FakePernix.willWriteInt("KX_GetLabelList", 1, -1);
        assertEquals(NegativeArraySizeException.class, thrown(() -> jni.KX_GetLabelList()).getClass());

        FakePernix.willReturn("KX_GetLabelList2", 40);
        assertEquals(40, code(() -> jni.KX_GetLabelList2()));
        FakePernix.willReturn("KX_GetLabelList2", 256);
        assertNull(jni.KX_GetLabelList2());
        assertEquals(0, FakePernix.allocations());
    }

    static Rec raidLuInformation() {
        Rec r = Rec.of(372576).i32(0, 2);
        put(put(r, 4, 0, RG_DETAIL), 4 + 89 * 52, 89, RG_DETAIL);
        put(r, 4684 + 240 * 29 + 16 * 14, 102, RG_DRIVE_INFO);
        put(put(r, 11884, 0, LOGICAL_UNIT), 11884 + 4095 * 88, 4095, LOGICAL_UNIT);
        r.i32(372332, 30);
        put(put(r, 372336, 1, SPARE_DISK), 372336 + 29 * 8, 29, SPARE_DISK);
        return r;
    }

    @Test
    public void importExNestsTheGroupInformationAllLusAndThirtySpares() {
        FakePernix.willWrite("KX_RaidLuImportEx", 3, raidLuInformation().bytes());
        RaidLUInformation got = jni.KX_RaidLuImportEx("u", S, P);
        assertEquals(2, got.rgparam.rg_count);
        assertEquals(90, got.rgparam.rg.length);
        assertFields(got.rgparam.rg[0], 0, RG_DETAIL);
        assertFields(got.rgparam.rg[89], 89, RG_DETAIL);
        assertEquals(30, got.rgparam.rgdrv.length);
        assertFields(got.rgparam.rgdrv[29][14], 102, RG_DRIVE_INFO);
        assertEquals(4096, got.luparam.length);
        assertFields(got.luparam[0], 0, LOGICAL_UNIT);
        assertFields(got.luparam[4095], 4095, LOGICAL_UNIT);
        assertEquals(30, got.spare_count);
        assertEquals(30, got.spareinfo.length);
        assertFields(got.spareinfo[0], 1, SPARE_DISK);
        assertFields(got.spareinfo[29], 29, SPARE_DISK);
    }

    @Test
    public void importReturnsNinetyGroupsThenAllLusAsOneObjectArray() {
        Rec groups = put(put(Rec.of(90 * 56), 0, 0, RAID_GROUP), 89 * 56, 89, RAID_GROUP);
        Rec lus = put(put(Rec.of(4096 * 88), 0, 1, LOGICAL_UNIT), 4095 * 88, 2, LOGICAL_UNIT);
        FakePernix.willWrite("KX_RaidLuImport", 2, groups.bytes());
        FakePernix.willWrite("KX_RaidLuImport", 3, lus.bytes());
        Object[] got = jni.KX_RaidLuImport("u", P);
        assertEquals(4186, got.length);
        assertSame(Object[].class, got.getClass());
        for (int i = 0; i < 90; i++) assertSame(RaidGroup.class, got[i].getClass());
        for (int i = 90; i < 4186; i++) assertSame(LogicalUnit.class, got[i].getClass());
        assertFields(got[0], 0, RAID_GROUP);
        assertFields(got[89], 89, RAID_GROUP);
        assertFields(got[90], 1, LOGICAL_UNIT);
        assertFields(got[4185], 2, LOGICAL_UNIT);
        assertEquals(5040, FakePernix.arg("KX_RaidLuImport", 0, 2).length);
        assertEquals(360448, FakePernix.arg("KX_RaidLuImport", 0, 3).length);
    }
}
