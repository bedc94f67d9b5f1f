package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import orvane.str.diskarray.*;
import org.junit.Test;

/** RAID groups; also the record helpers of the LU, format and drive tests. */
public class RaidGroupTest extends BridgeTest {
    static final String[] RAID_GROUP = {"rgnum", "level", "port", "row", "width", "depth", "minimum_capa",
        "lastLBASet", "lastLBA", "rest_h", "rest", "lumaxcapa", "unit_type", "unit_type_sub_code"};
    static final String[] CREATE_HEAD = {"create_mode", "rgnum", "level", "drive_type", "drive_capa",
        "parity_hdu_count", "parity_count"};
    static final String[] RG_DETAIL = {"valid_index", "rgnum", "level", "start_unit_no", "start_hdu_no",
        "parity_hdu_count", "parity_count", "minimum_capa", "total_capa_h", "total_capa_l", "rest_capa_h",
        "rest_capa_l", "rg_type"};
    static final String[] RG_DRIVE_INFO = {"valid_index", "next_unit_no", "next_hdu_no", "paritygroup_no"};
    static final String[] AREA_INFO = {"areakind", "lun", "befor_lun", "area_capa_h", "area_capa_l"};

    static final KXSessionInfo S = SessionTest.session(9);

    /** A value that differs per record and per field, negative ones included. */
    static int value(int record, int field) {
        return (record * 131 + field * 7 + 1) * ((field & 1) == 0 ? 1 : -1) ^ (field << 24);
    }

    /** Sets int fields names[i] of obj to value(seed, i). */
    static <T> T fill(T obj, int seed, String... names) {
        try {
            for (int i = 0; i < names.length; i++) obj.getClass().getField(names[i]).setInt(obj, value(seed, i));
        } catch (ReflectiveOperationException e) {
            throw new AssertionError(e);
        }
        return obj;
    }

    /** Writes value(seed, i) at off + 4i. */
    static Rec put(Rec rec, int off, int seed, String... names) {
        for (int i = 0; i < names.length; i++) rec.i32(off + 4 * i, value(seed, i));
        return rec;
    }

    /** Asserts that the int fields of obj hold value(seed, i). */
    static void assertFields(Object obj, int seed, String... names) {
        try {
            for (int i = 0; i < names.length; i++)
                assertEquals(names[i], value(seed, i), obj.getClass().getField(names[i]).getInt(obj));
        } catch (ReflectiveOperationException e) {
            throw new AssertionError(e);
        }
    }

    static CreateRaidGroup create(int drives) {
        CreateRaidGroup c = fill(new CreateRaidGroup(), 3, CREATE_HEAD);
        c.rgdrv = new CreateRgDrive[drives];
        for (int i = 0; i < drives; i++) {
            c.rgdrv[i] = new CreateRgDrive();
            c.rgdrv[i].unit_no = i + 1;
            c.rgdrv[i].hdu_no = -(i + 1);
        }
        return c;
    }

    @Test
    public void oldInterfaceListsNinetyGroupsAndSendsWholeGroups() {
        Rec list = put(put(Rec.of(90 * 56), 0, 0, RAID_GROUP), 89 * 56, 89, RAID_GROUP);
        FakePernix.willWrite("KX_GetRaidGroups", 1, list.bytes());
        RaidGroup[] groups = jni.KX_GetRaidGroups("unit-A");
        assertEquals(90, groups.length);
        assertFields(groups[0], 0, RAID_GROUP);
        assertFields(groups[89], 89, RAID_GROUP);
        assertEquals(0, groups[50].rgnum);

        RaidGroup rg = fill(new RaidGroup(), 5, RAID_GROUP);
        jni.KX_RaidGroupAdd("u", rg);
        jni.KX_RaidGroupExpand("u", rg);
        for (String fn : new String[] {"KX_RaidGroupAdd", "KX_RaidGroupExpand"})
            assertArrayEquals(fn, put(Rec.of(56), 0, 5, RAID_GROUP).bytes(), FakePernix.arg(fn, 0, 1));
    }

    @Test
    public void plannedGroupIsSentWithItsDrivesAndItsCapacityReturned() {
        FakePernix.willWrite("KX_GetRaidGroupCreationCapacity", 3, put(Rec.of(52), 0, 11, RG_DETAIL).bytes());
        assertFields(jni.KX_GetRaidGroupCreationCapacity("unit-C", S, create(2)), 11, RG_DETAIL);
        jni.KX_CreateRaidGroup("unit-C", S, create(3));
        Rec expected = put(Rec.of(3628), 0, 3, CREATE_HEAD);
        for (int i = 0; i < 3; i++) expected.i32(28 + 8 * i, i + 1).i32(32 + 8 * i, -(i + 1));
        assertArrayEquals(expected.bytes(), FakePernix.arg("KX_CreateRaidGroup", 0, 2));
        assertArrayEquals(expected.i32(44, 0).i32(48, 0).bytes(),
                          FakePernix.arg("KX_GetRaidGroupCreationCapacity", 0, 2));

        // No drive list: the slots stay empty.  More than 450: the first 450 only.
        CreateRaidGroup edge = create(0);
        edge.rgdrv = null;
        jni.KX_CreateRaidGroup("u", S, edge);
        assertArrayEquals(put(Rec.of(3628), 0, 3, CREATE_HEAD).bytes(), FakePernix.arg("KX_CreateRaidGroup", 1, 2));
        jni.KX_CreateRaidGroup("u", S, create(460));
        Rec sent = Rec.wrap(FakePernix.arg("KX_CreateRaidGroup", 2, 2));
        assertEquals(450, sent.i32(28 + 8 * 449));
        assertEquals(-450, sent.i32(32 + 8 * 449));
    }

    @Test
    public void groupInformationHoldsNinetyGroupsAndThirtyRowsOfFifteenDrives() {
        Rec info = put(put(Rec.of(11884).i32(0, 2), 4, 0, RG_DETAIL), 4 + 89 * 52, 89, RG_DETAIL);
        put(info, 4684 + 240, 100, RG_DRIVE_INFO);
        put(info, 4684 + 16, 101, RG_DRIVE_INFO);
        put(info, 4684 + 240 * 29 + 16 * 14, 102, RG_DRIVE_INFO);
        FakePernix.willWrite("KX_GetRaidGroupInformation", 2, info.bytes());
        RaidGroupInformation got = jni.KX_GetRaidGroupInformation("u", S);
        assertEquals(2, got.rg_count);
        assertEquals(90, got.rg.length);
        assertFields(got.rg[0], 0, RG_DETAIL);
        assertFields(got.rg[89], 89, RG_DETAIL);
        assertEquals(30, got.rgdrv.length);
        for (RgDriveInfo[] row : got.rgdrv) assertEquals(15, row.length);
        assertFields(got.rgdrv[1][0], 100, RG_DRIVE_INFO);
        assertFields(got.rgdrv[0][1], 101, RG_DRIVE_INFO);
        assertFields(got.rgdrv[29][14], 102, RG_DRIVE_INFO);
    }

    @Test
    public void areaInformationAlwaysHolds8193Areas() {
        Rec area = put(Rec.of(163872).i32(0, 7).i32(4, 0x12345678).i32(8, 2), 12, 0, AREA_INFO);
        FakePernix.willWrite("KX_GetRGAreaInformation", 3, put(area, 12 + 20 * 8192, 8192, AREA_INFO).bytes());
        RGAreaInformation got = jni.KX_GetRGAreaInformation("u", S, 7);
        assertArrayEquals(new int[] {7, 0x12345678, 2, 8193},
                          new int[] {got.rgnum, got.lumaxcapa, got.area_count, got.area.length});
        assertFields(got.area[0], 0, AREA_INFO);
        assertFields(got.area[8192], 8192, AREA_INFO);
        assertEquals(0, got.area[4000].lun);
    }
}
