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
 * export and import.
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

    @Test
    public void anEmptyPathGoesAsAnEmptyString() {
        jni.KX_RaidLuExport("u", S, "");
        assertCString("", 1024, FakePernix.arg("KX_RaidLuExport", 0, 2));
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

    static Rec labels(int n) {
        Rec r = Rec.of(16 * n);
        for (int i = 0; i < n; i++) r.str(16 * i, "old" + i).str(16 * i + 8, "new" + i);
        return r;
    }

    /** Asserts got holds exactly n labels, each built from its own record of labels(n). */
    static void assertLabels(int n, KXLabel[] got) {
        assertEquals(n, got.length);
        for (int i = 0; i < n; i++) {
            assertEquals("old" + i, got[i].oldlabel);
            assertEquals("new" + i, got[i].newlabel);
        }
    }

    @Test
    public void labelListsHoldTheLibrarysCountAndAllocateNothing() {
        FakePernix.willWrite("KX_GetLabelList", 0, labels(20).str(16, "ABCDEFGH").bytes());
        FakePernix.willWriteInt("KX_GetLabelList", 1, 3);
        KXLabel[] got = jni.KX_GetLabelList();
        assertEquals(3, got.length);
        assertArrayEquals(new String[] {"old0", "new0", "ABCDEFGH", "new1", "old2", "new2"},
            new String[] {got[0].oldlabel, got[0].newlabel, got[1].oldlabel, got[1].newlabel, got[2].oldlabel,
                got[2].newlabel});
        assertEquals(0, FakePernix.allocations());

        // A count of 0 is an empty array, not null.
        FakePernix.willWriteInt("KX_GetLabelList", 1, 0);
        assertEquals(0, jni.KX_GetLabelList().length);

        FakePernix.willReturn("KX_GetLabelList2", 40);
        assertEquals(40, code(() -> jni.KX_GetLabelList2()));
        FakePernix.willReturn("KX_GetLabelList2", 256);
        assertNull(jni.KX_GetLabelList2());
        assertEquals(0, FakePernix.allocations());
    }

    @Test
    public void labelListsNeverGrowPastTheirTable() {
        // The library's count is not trusted: at the table's 20 or 64 labels
        // and past them the array holds the whole table, every label built,
        // and nothing beyond it.
        FakePernix.willWrite("KX_GetLabelList", 0, labels(20).bytes());
        FakePernix.willWrite("KX_GetLabelList2", 0, labels(64).bytes());
        for (int count : new int[] {20, 21, 319231960, Integer.MAX_VALUE}) {
            FakePernix.willWriteInt("KX_GetLabelList", 1, count);
            assertLabels(20, jni.KX_GetLabelList());
        }
        for (int count : new int[] {63, 64, 65, Integer.MAX_VALUE}) {
            FakePernix.willWriteInt("KX_GetLabelList2", 1, count);
            assertLabels(Math.min(count, 64), jni.KX_GetLabelList2());
        }
        assertEquals(8, FakePernix.calls("KX_GetLabelList") + FakePernix.calls("KX_GetLabelList2"));
    }

    @Test
    public void aNegativeLabelCountIs2817() {
        for (int count : new int[] {-1, Integer.MIN_VALUE}) {
            FakePernix.willWriteInt("KX_GetLabelList", 1, count);
            FakePernix.willWriteInt("KX_GetLabelList2", 1, count);
            assertEquals(2817, code(() -> jni.KX_GetLabelList()));
            assertEquals(2817, code(() -> jni.KX_GetLabelList2()));
        }
        assertEquals(2, FakePernix.calls("KX_GetLabelList"));
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
