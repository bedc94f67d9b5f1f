package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.AreaInfo;
import orvane.str.diskarray.CreateRaidGroup;
import orvane.str.diskarray.CreateRgDrive;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.RGAreaInformation;
import orvane.str.diskarray.RaidGroup;
import orvane.str.diskarray.RaidGroupInformation;
import orvane.str.diskarray.RgDetail;
import orvane.str.diskarray.RgDriveInfo;
import org.junit.Test;

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

    static KXSessionInfo session(int seed) {
        KXSessionInfo s = new KXSessionInfo();
        for (int i = 0; i < 32; i++) s.session_id[i] = (byte) (seed + i);
        return s;
    }

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

    /** Checks that rec holds value(seed, i) at off + 4i. */
    static void assertInts(Rec rec, int off, int seed, String... names) {
        for (int i = 0; i < names.length; i++) assertEquals(names[i], value(seed, i), rec.i32(off + 4 * i));
    }

    /** Checks that the int fields of obj hold value(seed, i). */
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
    public void raidGroupListAlwaysHoldsNinetyGroups() {
        Rec list = Rec.of(90 * 56);
        for (int r = 0; r < 90; r += 89) put(list, r * 56, r, RAID_GROUP);
        put(list, 2 * 56, 2, RAID_GROUP);
        FakePernix.willWrite("KX_GetRaidGroups", 1, list.bytes());

        RaidGroup[] groups = jni.KX_GetRaidGroups("unit-A");
        assertEquals(90, groups.length);
        assertFields(groups[0], 0, RAID_GROUP);
        assertFields(groups[2], 2, RAID_GROUP);
        assertFields(groups[89], 89, RAID_GROUP);
        assertEquals(0, groups[50].rgnum);
        assertCString("unit-A", 65, FakePernix.arg("KX_GetRaidGroups", 0, 0));
        assertEquals(90 * 56, FakePernix.arg("KX_GetRaidGroups", 0, 1).length);
    }

    @Test
    public void raidGroupAddAndExpandSendEveryField() {
        RaidGroup rg = fill(new RaidGroup(), 5, RAID_GROUP);
        jni.KX_RaidGroupAdd("u", rg);
        jni.KX_RaidGroupExpand("u", rg);
        for (String fn : new String[] {"KX_RaidGroupAdd", "KX_RaidGroupExpand"}) {
            Rec sent = Rec.wrap(FakePernix.arg(fn, 0, 1));
            assertEquals(56, sent.size());
            assertInts(sent, 0, 5, RAID_GROUP);
        }
        // A null group goes to the library as an empty record.
        jni.KX_RaidGroupAdd("u", null);
        assertTrue(Rec.wrap(FakePernix.arg("KX_RaidGroupAdd", 1, 1)).zero(0, 56));
    }

    @Test
    public void createRaidGroupSendsHeaderAndDrives() {
        jni.KX_CreateRaidGroup("unit", session(9), create(3));
        assertArrayEquals(session(9).session_id, FakePernix.arg("KX_CreateRaidGroup", 0, 1));
        Rec sent = Rec.wrap(FakePernix.arg("KX_CreateRaidGroup", 0, 2));
        assertEquals(3628, sent.size());
        assertInts(sent, 0, 3, CREATE_HEAD);
        for (int i = 0; i < 3; i++) {
            assertEquals(i + 1, sent.i32(28 + 8 * i));
            assertEquals(-(i + 1), sent.i32(32 + 8 * i));
        }
        assertTrue(sent.zero(28 + 24, 3628 - 28 - 24));
    }

    @Test
    public void createRaidGroupDriveListEdges() {
        // No drive list: the header still goes, the slots stay empty.
        CreateRaidGroup none = create(0);
        none.rgdrv = null;
        jni.KX_CreateRaidGroup("unit", session(1), none);
        Rec sent = Rec.wrap(FakePernix.arg("KX_CreateRaidGroup", 0, 2));
        assertInts(sent, 0, 3, CREATE_HEAD);
        assertTrue(sent.zero(28, 3600));

        // A null drive leaves its slot empty and the ones after it are still read.
        CreateRaidGroup gap = create(3);
        gap.rgdrv[1] = null;
        jni.KX_CreateRaidGroup("unit", session(1), gap);
        sent = Rec.wrap(FakePernix.arg("KX_CreateRaidGroup", 1, 2));
        assertTrue(sent.zero(36, 8));
        assertEquals(3, sent.i32(44));

        // More drives than slots: the first 450 are taken, nothing is written past the record.
        jni.KX_CreateRaidGroup("unit", session(1), create(460));
        sent = Rec.wrap(FakePernix.arg("KX_CreateRaidGroup", 2, 2));
        assertEquals(450, sent.i32(28 + 8 * 449));
        assertEquals(-450, sent.i32(32 + 8 * 449));
    }

    @Test
    public void creationCapacityReadsThePlanAndReturnsTheDetail() {
        FakePernix.willWrite("KX_GetRaidGroupCreationCapacity", 3, put(Rec.of(52), 0, 11, RG_DETAIL).bytes());
        RgDetail d = jni.KX_GetRaidGroupCreationCapacity("unit-C", session(4), create(2));
        assertFields(d, 11, RG_DETAIL);
        assertCString("unit-C", 65, FakePernix.arg("KX_GetRaidGroupCreationCapacity", 0, 0));
        assertArrayEquals(session(4).session_id, FakePernix.arg("KX_GetRaidGroupCreationCapacity", 0, 1));
        Rec sent = Rec.wrap(FakePernix.arg("KX_GetRaidGroupCreationCapacity", 0, 2));
        assertInts(sent, 0, 3, CREATE_HEAD);
        assertEquals(2, sent.i32(36));
        assertEquals(52, FakePernix.arg("KX_GetRaidGroupCreationCapacity", 0, 3).length);
    }

    @Test
    public void raidGroupInformationBuildsNinetyGroupsAndThirtyByFifteenDrives() {
        Rec info = Rec.of(11884).i32(0, 2);
        put(info, 4, 0, RG_DETAIL);
        put(info, 4 + 89 * 52, 89, RG_DETAIL);
        put(info, 4684 + 240 * 1 + 16 * 0, 100, RG_DRIVE_INFO);
        put(info, 4684 + 240 * 0 + 16 * 1, 101, RG_DRIVE_INFO);
        put(info, 4684 + 240 * 29 + 16 * 14, 102, RG_DRIVE_INFO);
        FakePernix.willWrite("KX_GetRaidGroupInformation", 2, info.bytes());

        RaidGroupInformation got = jni.KX_GetRaidGroupInformation("unit", session(2));
        assertEquals(2, got.rg_count);
        assertEquals(90, got.rg.length);
        assertFields(got.rg[0], 0, RG_DETAIL);
        assertFields(got.rg[89], 89, RG_DETAIL);
        assertEquals(0, got.rg[2].rgnum);
        assertEquals(30, got.rgdrv.length);
        for (RgDriveInfo[] row : got.rgdrv) assertEquals(15, row.length);
        assertFields(got.rgdrv[1][0], 100, RG_DRIVE_INFO);
        assertFields(got.rgdrv[0][1], 101, RG_DRIVE_INFO);
        assertFields(got.rgdrv[29][14], 102, RG_DRIVE_INFO);
        assertArrayEquals(session(2).session_id, FakePernix.arg("KX_GetRaidGroupInformation", 0, 1));
    }

    @Test
    public void areaInformationAlwaysHolds8193Areas() {
        Rec area = Rec.of(163872).i32(0, 7).i32(4, 0x12345678).i32(8, 2);
        put(area, 12, 0, AREA_INFO);
        put(area, 12 + 20 * 8192, 8192, AREA_INFO);
        FakePernix.willWrite("KX_GetRGAreaInformation", 3, area.bytes());

        RGAreaInformation got = jni.KX_GetRGAreaInformation("unit", session(3), 7);
        assertEquals(7, got.rgnum);
        assertEquals(0x12345678, got.lumaxcapa);
        assertEquals(2, got.area_count);
        assertEquals(8193, got.area.length);
        assertFields(got.area[0], 0, AREA_INFO);
        assertFields(got.area[8192], 8192, AREA_INFO);
        AreaInfo middle = got.area[4000];
        assertEquals(0, middle.lun);
        assertEquals(7, FakePernix.intArg("KX_GetRGAreaInformation", 0, 2));
    }

    @Test
    public void deleteCommandsPassUnitSessionAndNumber() {
        jni.KX_RaidGroupDelete("unit-D", session(6), -3);
        assertCString("unit-D", 65, FakePernix.arg("KX_RaidGroupDelete", 0, 0));
        assertArrayEquals(session(6).session_id, FakePernix.arg("KX_RaidGroupDelete", 0, 1));
        assertEquals(-3, FakePernix.intArg("KX_RaidGroupDelete", 0, 2));

        // A null session goes as an empty token.
        jni.KX_RaidGroupAllDelete("unit-D", null);
        assertArrayEquals(new byte[32], FakePernix.arg("KX_RaidGroupAllDelete", 0, 1));
    }

    @Test
    public void libraryResultsAreThrownUnchangedAnd256Quietly() {
        FakePernix.willReturn("KX_GetRaidGroups", 0x3A01);
        assertEquals(0x3A01, code(() -> jni.KX_GetRaidGroups("u")));
        FakePernix.willReturn("KX_GetRGAreaInformation", -9);
        assertEquals(-9, code(() -> jni.KX_GetRGAreaInformation("u", session(0), 1)));
        FakePernix.willReturn("KX_CreateRaidGroup", 4242);
        assertEquals(4242, code(() -> jni.KX_CreateRaidGroup("u", session(0), create(1))));

        FakePernix.willReturn("KX_GetRaidGroups", 256);
        FakePernix.willReturn("KX_GetRaidGroupInformation", 256);
        FakePernix.willReturn("KX_GetRaidGroupCreationCapacity", 256);
        FakePernix.willReturn("KX_RaidGroupDelete", 256);
        assertNull(jni.KX_GetRaidGroups("u"));
        assertNull(jni.KX_GetRaidGroupInformation("u", session(0)));
        assertNull(jni.KX_GetRaidGroupCreationCapacity("u", session(0), create(1)));
        jni.KX_RaidGroupDelete("u", session(0), 1);
    }

    @Test
    public void nullUnitNameIsRefusedBeforeTheLibrary() {
        Body[] calls = {
            () -> jni.KX_GetRaidGroups(null),
            () -> jni.KX_RaidGroupAdd(null, new RaidGroup()),
            () -> jni.KX_RaidGroupExpand(null, new RaidGroup()),
            () -> jni.KX_RaidGroupDelete(null, session(0), 1),
            () -> jni.KX_RaidGroupAllDelete(null, session(0)),
            () -> jni.KX_CreateRaidGroup(null, session(0), create(1)),
            () -> jni.KX_GetRaidGroupInformation(null, session(0)),
            () -> jni.KX_GetRGAreaInformation(null, session(0), 1),
            () -> jni.KX_GetRaidGroupCreationCapacity(null, session(0), create(1)),
        };
        for (Body b : calls) assertEquals(258, code(b));
        assertEquals(0, FakePernix.log().length);
        assertEquals(0, FakePernix.allocations());
    }

    @Test
    public void everyAllocationFailureIsReported() throws Throwable {
        assertEachAllocationFailureReported(() -> jni.KX_GetRaidGroups("u"));
        assertEachAllocationFailureReported(() -> jni.KX_RaidGroupAdd("u", new RaidGroup()));
        assertEachAllocationFailureReported(() -> jni.KX_RaidGroupDelete("u", session(0), 1));
        assertEachAllocationFailureReported(() -> jni.KX_CreateRaidGroup("u", session(0), create(2)));
        assertEachAllocationFailureReported(() -> jni.KX_GetRaidGroupInformation("u", session(0)));
        assertEachAllocationFailureReported(() -> jni.KX_GetRGAreaInformation("u", session(0), 1));
        assertEachAllocationFailureReported(
            () -> jni.KX_GetRaidGroupCreationCapacity("u", session(0), create(2)));
    }
}
