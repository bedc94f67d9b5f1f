package simtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;
import static simtest.Sim.expect;
import static simtest.Sim.wide;

import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import org.junit.AfterClass;
import org.junit.BeforeClass;
import org.junit.Test;
import orvane.str.diskarray.AreaInfo;
import orvane.str.diskarray.CreateRaidGroup;
import orvane.str.diskarray.CreateRgDrive;
import orvane.str.diskarray.DiskDrive;
import orvane.str.diskarray.DiskDriveInformation;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUserInfo;
import orvane.str.diskarray.LogicalUnit;
import orvane.str.diskarray.QuickFormatList;
import orvane.str.diskarray.QuickFormatStatus;
import orvane.str.diskarray.RaidGroup;
import orvane.str.diskarray.RaidGroupInformation;
import orvane.str.diskarray.RaidLUInformation;
import orvane.str.diskarray.RGAreaInformation;
import orvane.str.diskarray.RgDetail;

/**
 * RAID groups take free drives and give the capacity their level makes of
 * them; LUs are carved from a group's free areas.  After every step of a
 * create/delete sequence the model is checked whole (Sim.consistent).
 */
public class StorageTest {
    private static KXSessionInfo s;
    private static long driveBlocks;

    @BeforeClass
    public static void login() throws Exception {
        s = Sim.admin();
        DiskDriveInformation d = JNI.KX_GetDriveInformation(UNIT, s, 0, 0);
        driveBlocks = d.lastLBA + 1L;
        assertEquals("600GB", d.drive_capacity);
    }

    @AfterClass
    public static void logout() throws Exception {
        Sim.logout(s);
    }

    @Test
    public void aRaidGroupsCapacityFollowsItsLevelAndDrives() throws Exception {
        int[][] shapes = {{5, 5, 1, 4}, {6, 6, 1, 4}, {10, 4, 1, 2}, {1, 2, 1, 1}, {0, 3, 1, 3}, {5, 3, 2, 4}};
        for (int[] shape : shapes) {
            CreateRaidGroup c = Child.automatic(shape[0], shape[1], shape[2]);
            RgDetail plan = JNI.KX_GetRaidGroupCreationCapacity(UNIT, s, c);
            assertEquals("RAID" + shape[0] + " of " + shape[2] + " x " + shape[1], shape[3] * driveBlocks,
                    wide(plan.total_capa_h, plan.total_capa_l));
        }
        CreateRaidGroup bad = Child.automatic(6, 3, 1);
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_GetRaidGroupCreationCapacity(UNIT, s, bad));
        bad.level = 4;
        bad.parity_hdu_count = 5;
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_CreateRaidGroup(UNIT, s, bad));
        Sim.consistent(s);
    }

    @Test
    public void aRaidGroupTakesFreeDrivesOnlyAndGivesThemBack() throws Exception {
        DiskDrive[] before = JNI.KX_GetDriveStatus(UNIT, s);
        List<CreateRgDrive> free = new ArrayList<>();
        CreateRgDrive used = null;
        for (DiskDrive d : before) {
            if (d.mount != 0 && d.attribute == 0 && d.drv_state == 0 && free.size() < 6) {
                free.add(drive(d.port_no, d.row_no));
            } else if (d.mount != 0 && d.attribute != 0 && used == null) {
                used = drive(d.port_no, d.row_no);
            }
        }
        CreateRaidGroup c = Child.automatic(6, 6, 1);
        c.create_mode = 0;
        c.rgdrv = free.toArray(new CreateRgDrive[0]);
        RgDetail plan = JNI.KX_GetRaidGroupCreationCapacity(UNIT, s, c);
        c.rgnum = 77;
        JNI.KX_CreateRaidGroup(UNIT, s, c);
        RgDetail made = group(77);
        plan.rgnum = 77;
        Sim.assertSameFields(plan, made);
        assertEquals(free.get(0).unit_no, made.start_unit_no);
        assertEquals(free.get(0).hdu_no, made.start_hdu_no);
        DiskDrive[] after = JNI.KX_GetDriveStatus(UNIT, s);
        for (CreateRgDrive d : free) {
            assertEquals("drive " + d.unit_no + "/" + d.hdu_no, 1, slot(after, d).attribute);
        }
        Sim.consistent(s);

        expect(Sim.EXISTS, () -> JNI.KX_CreateRaidGroup(UNIT, s, c));
        c.rgnum = 78;
        expect(Sim.BUSY, () -> JNI.KX_CreateRaidGroup(UNIT, s, c));  // its drives are taken
        CreateRgDrive taken = used;
        CreateRaidGroup withUsed = Child.automatic(1, 2, 1);
        withUsed.create_mode = 0;
        withUsed.rgdrv = new CreateRgDrive[] {drive(3, 14), taken};
        expect(Sim.BUSY, () -> JNI.KX_CreateRaidGroup(UNIT, s, withUsed));
        CreateRaidGroup tooMany = Child.automatic(0, 450, 1);
        expect(Sim.CAPACITY, () -> JNI.KX_CreateRaidGroup(UNIT, s, tooMany));

        JNI.KX_RaidGroupDelete(UNIT, s, 77);
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_RaidGroupDelete(UNIT, s, 77));
        Sim.assertSameFields(before, JNI.KX_GetDriveStatus(UNIT, s));
        Sim.consistent(s);
    }

    @Test
    public void lusAreCarvedFromFreeAreasAndLeaveHolesWhenDeleted() throws Exception {
        CreateRaidGroup c = Child.automatic(1, 2, 1);  // its capacity fits an LU's int
        c.rgnum = 60;
        JNI.KX_CreateRaidGroup(UNIT, s, c);
        long total = wide(group(60).total_capa_h, group(60).total_capa_l);
        int gb = 1953125;  // blocks in 1 GB
        add(600, 60, 10 * gb);
        add(601, 60, 20 * gb);
        add(602, 60, 30 * gb);
        assertAreas(60, "600:" + 10 * gb, "601:" + 20 * gb, "602:" + 30 * gb, "free:" + (total - 60L * gb));
        Sim.consistent(s);

        JNI.KX_LogicalUnitDeleteByLUN(UNIT, s, 601);
        assertAreas(60, "600:" + 10 * gb, "free:" + 20 * gb, "602:" + 30 * gb, "free:" + (total - 60L * gb));
        Sim.consistent(s);

        // The first free area that holds it takes a new LU.
        add(603, 60, 5 * gb);
        assertAreas(60, "600:" + 10 * gb, "603:" + 5 * gb, "free:" + 15 * gb, "602:" + 30 * gb,
                "free:" + (total - 60L * gb));
        // An LU grows into the free area right after it, no further.
        underUnitLogin(() -> {
            JNI.KX_LogicalUnitExpand(UNIT, 603, 15 * gb);
            expect(Sim.CAPACITY, () -> JNI.KX_LogicalUnitExpand(UNIT, 603, 1));
        });
        assertAreas(60, "600:" + 10 * gb, "603:" + 20 * gb, "602:" + 30 * gb, "free:" + (total - 60L * gb));
        Sim.consistent(s);

        expect(Sim.EXISTS, () -> add(600, 60, gb));
        expect(Sim.CAPACITY, () -> add(604, 60, (int) (total - 60L * gb + 1)));
        expect(Sim.NO_SUCH_OBJECT, () -> add(604, 89, gb));
        expect(Sim.BUSY, () -> JNI.KX_RaidGroupDelete(UNIT, s, 60));  // it holds LUs

        for (int lun : new int[] {600, 602, 603}) {
            JNI.KX_LogicalUnitDeleteByLUN(UNIT, s, lun);
            Sim.consistent(s);
        }
        assertAreas(60, "free:" + total);
        JNI.KX_RaidGroupDelete(UNIT, s, 60);
        Sim.consistent(s);
    }

    @Test
    public void theRaidGroupAndLuFileReadsBackWhatWasExported() throws Exception {
        Path file = Sim.dir().resolve("raid-lu.txt");
        add(700, 1, 3 * 1953125);
        RaidGroupInformation groups = JNI.KX_GetRaidGroupInformation(UNIT, s);
        LogicalUnit[] lus = JNI.KX_GetLogicalUnit(UNIT, s);
        RaidGroup[][] old = new RaidGroup[1][];
        underUnitLogin(() -> old[0] = JNI.KX_GetRaidGroups(UNIT));
        JNI.KX_RaidLuExport(UNIT, s, file.toString());
        JNI.KX_LogicalUnitDeleteByLUN(UNIT, s, 700);  // the file keeps what was

        RaidLUInformation back = JNI.KX_RaidLuImportEx(UNIT, s, file.toString());
        Sim.assertSameFields(groups, back.rgparam);
        Sim.assertSameFields(lus, back.luparam);
        underUnitLogin(() -> {
            Object[] both = JNI.KX_RaidLuImport(UNIT, file.toString());
            assertEquals(90 + 4096, both.length);
            Sim.assertSameFields(old[0], Arrays.copyOfRange(both, 0, 90, RaidGroup[].class));
            Sim.assertSameFields(lus, Arrays.copyOfRange(both, 90, both.length, LogicalUnit[].class));
        });

        // A damaged file is refused whole.
        List<String> lines = new ArrayList<>(Files.readAllLines(file));
        lines.add(lines.size() - 1, "lu number=9999");
        Files.write(file, lines);
        expect(12305, () -> JNI.KX_RaidLuImportEx(UNIT, s, file.toString()));
        expect(12304, () -> JNI.KX_RaidLuImportEx(UNIT, s, file + ".missing"));
        Sim.consistent(s);
    }

    @Test
    public void quickFormatsRunOneAfterAnotherOnTheSimulatorsClock() throws Exception {
        int gb = 1953125;
        add(800, 0, 100 * gb);  // 10 s each at 10 GB/s
        add(801, 1, 100 * gb);
        assertEquals("not formatted", 2, JNI.KX_GetLogicalUnit1(UNIT, s, 800).status);
        QuickFormatList list = new QuickFormatList();
        list.lu[800] = 1;
        list.lu[801] = 1;
        JNI.KX_EntryQuickFormatList(UNIT, s, list);
        QuickFormatStatus[] now = JNI.KX_GetQuickFormatStatusList(UNIT, s).lu;
        assertEquals(1, now[800].entry);
        assertEquals("waiting for LU 800", 1, now[801].status);
        assertEquals(1, now[801].waiting_number);

        Sim.clock(15);  // 800 done, 801 half way
        now = JNI.KX_GetQuickFormatStatusList(UNIT, s).lu;
        assertEquals(3, now[800].status);
        assertEquals(100, now[800].percent);
        assertEquals(2, now[801].status);
        assertTrue("percent " + now[801].percent, now[801].percent >= 40 && now[801].percent <= 60);
        assertEquals("formatted", 0, JNI.KX_GetLogicalUnit1(UNIT, s, 800).status);
        assertEquals("formatting", 1, JNI.KX_GetLogicalUnit1(UNIT, s, 801).status);

        Sim.clock(10);
        assertEquals(3, JNI.KX_GetQuickFormatStatusList(UNIT, s).lu[801].status);
        JNI.KX_LogicalUnitDeleteByLUN(UNIT, s, 800);
        JNI.KX_LogicalUnitDeleteByLUN(UNIT, s, 801);
        Sim.consistent(s);
    }

    // ---- helpers

    private static void add(int lun, int rg, int blocks) throws Exception {
        JNI.KX_LogicalUnitAdd(UNIT, s, Child.lu(lun, rg, blocks));
    }

    /** The areas of a group as "lun:blocks" or "free:blocks", in address order. */
    private static void assertAreas(int rg, String... expected) throws Exception {
        RGAreaInformation a = JNI.KX_GetRGAreaInformation(UNIT, s, rg);
        List<String> got = new ArrayList<>();
        for (int i = 0; i < a.area_count; i++) {
            AreaInfo x = a.area[i];
            got.add((x.areakind == 0 ? "free" : String.valueOf(x.lun)) + ":" + wide(x.area_capa_h, x.area_capa_l));
        }
        assertEquals(List.of(expected), got);
    }

    private static RgDetail group(int rg) throws Exception {
        for (RgDetail g : JNI.KX_GetRaidGroupInformation(UNIT, s).rg) {
            if (g.valid_index != 0 && g.rgnum == rg) {
                return g;
            }
        }
        throw new AssertionError("no RAID group " + rg);
    }

    private static CreateRgDrive drive(int enclosure, int slot) {
        CreateRgDrive d = new CreateRgDrive();
        d.unit_no = enclosure;
        d.hdu_no = slot;
        return d;
    }

    private static DiskDrive slot(DiskDrive[] all, CreateRgDrive d) {
        for (DiskDrive x : all) {
            if (x.port_no == d.unit_no && x.row_no == d.hdu_no) {
                return x;
            }
        }
        throw new AssertionError("no slot " + d.unit_no + "/" + d.hdu_no);
    }

    /** Runs calls of the older interface under a unit login of the administrator. */
    static void underUnitLogin(Sim.Call body) throws Exception {
        KXUserInfo u = new KXUserInfo();
        u.user = Sim.ADMIN;
        u.passwd = Sim.PASSWORD;
        JNI.KX_LoginKXUnit(UNIT, 0, u);
        try {
            body.run();
        } finally {
            JNI.KX_LogoutKXUnit(UNIT, 0);
        }
    }
}
