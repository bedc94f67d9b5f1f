package simtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;
import static simtest.Sim.assertSameFields;
import static simtest.Sim.expect;

import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.concurrent.TimeUnit;
import org.junit.After;
import org.junit.AfterClass;
import org.junit.BeforeClass;
import org.junit.Test;
import org.junit.experimental.categories.Category;
import orvane.str.diskarray.BootOption;
import orvane.str.diskarray.CommandDevice;
import orvane.str.diskarray.DMLUInformation;
import orvane.str.diskarray.FarsyncAsyncOption;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.LogicalUnit;
import orvane.str.diskarray.LuMigrationInformation;
import orvane.str.diskarray.LuMigrationPairInfo;
import orvane.str.diskarray.LuMigrationRequestPairInfo;
import orvane.str.diskarray.LuMigrationReserveLU;
import orvane.str.diskarray.MirrorLUInfo;
import orvane.str.diskarray.PairInfo;
import orvane.str.diskarray.RemoteDeviceInformation;
import orvane.str.diskarray.RequestLuMigration;

/**
 * Copy pairs (made and split by the tool, as a host would through its
 * command device), DMLUs, command devices, the remote array, LU migration and
 * the boot option file through the bridge: settings read back, refusals with
 * their codes, copies that advance with the stepped clock.  Each test leaves
 * no pair, migration or DMLU behind.
 */
public class ReplicationTest {
    private static KXSessionInfo s;

    @BeforeClass
    public static void login() throws Exception {
        s = Sim.admin();
    }

    @AfterClass
    public static void logout() throws Exception {
        Sim.logout(s);
    }

    @After
    public void clearFaults() throws Exception {
        Sim.tool("faults", "clear");
    }

    /** The tool's exit status and output, for host commands the array refuses. */
    private static String hostRefused(String... words) throws Exception {
        List<String> cmd = new ArrayList<>(List.of(System.getProperty("sim.tool"), "pair"));
        cmd.addAll(Arrays.asList(words));
        Process p = new ProcessBuilder(cmd).redirectErrorStream(true).start();
        String out = new String(p.getInputStream().readAllBytes(), StandardCharsets.UTF_8);
        assertTrue(p.waitFor(60, TimeUnit.SECONDS));
        assertEquals("pernix-sim pair " + String.join(" ", words) + " should fail:\n" + out, 1, p.exitValue());
        return out;
    }

    private static DMLUInformation dmlus(int... luns) throws Exception {
        DMLUInformation d = JNI.KX_GetDMLU(UNIT, s);
        d.dmlu_count = luns.length;
        for (int i = 0; i < d.dmlu.length; i++) {
            d.dmlu[i].dmlu_valid = i < luns.length ? 1 : 0;
            d.dmlu[i].set_valid = i < luns.length ? 1 : 0;
            d.dmlu[i].dmlu_lu = i < luns.length ? luns[i] : -1;
        }
        return d;
    }

    private static void makeLu(int number, int group, long blocks) throws Exception {
        LogicalUnit lu = new LogicalUnit();
        lu.luNumber = number;
        lu.rgNumber = group;
        lu.capacity = (int) blocks;
        lu.stripe = 256;
        lu.hostblock = 512;
        lu.defaultCTL = 0;
        JNI.KX_LogicalUnitAdd(UNIT, s, lu);
    }

    private static RequestLuMigration request(int source, int target, int pace) {
        RequestLuMigration r = new RequestLuMigration();
        r.request_pair_count = 1;
        r.owner_id = 0;
        LuMigrationRequestPairInfo p = new LuMigrationRequestPairInfo();
        p.pvol_lun = source;
        p.svol_lun = target;
        p.copying_pace = pace;
        r.lu = new LuMigrationRequestPairInfo[] {p};
        return r;
    }

    private static LuMigrationReserveLU reserve(int lun) {
        LuMigrationReserveLU r = new LuMigrationReserveLU();
        r.reserve_lu[lun] = 1;
        return r;
    }

    @Test
    @Category(Smoke.class)
    public void settingsReadBack() throws Exception {
        DMLUInformation d = dmlus(7);
        JNI.KX_SetDMLU(UNIT, s, d);
        assertSameFields(d, JNI.KX_GetDMLU(UNIT, s));

        CommandDevice c = JNI.KX_GetCommandDevice(UNIT, s);
        c.cmd_count = 1;
        c.cmddev[0].cmd_valid = 1;
        c.cmddev[0].set_valid = 1;
        c.cmddev[0].cmd_lu = 6;
        c.cmddev[0].rm_security = 1;
        c.sequence_no = "A1";
        JNI.KX_SetCommandDevice(UNIT, s, c);
        assertSameFields(c, JNI.KX_GetCommandDevice(UNIT, s));
        CommandDevice taken = JNI.KX_GetCommandDevice(UNIT, s);
        taken.cmddev[0].cmd_lu = 7;  // the DMLU
        expect(Sim.BUSY, () -> JNI.KX_SetCommandDevice(UNIT, s, taken));
        expect(Sim.BUSY, () -> JNI.KX_LogicalUnitDeleteByLUN(UNIT, s, 6));
        assertSameFields(c, JNI.KX_GetCommandDevice(UNIT, s));

        RemoteDeviceInformation r = JNI.KX_GetRemoteDeviceInformation(UNIT, s);
        r.valid = 1;
        r.equipment_id = "R7";
        r.serial = "93000099";
        JNI.KX_SetRemoteDeviceInformation(UNIT, s, r);
        assertSameFields(r, JNI.KX_GetRemoteDeviceInformation(UNIT, s));

        FarsyncAsyncOption f = JNI.KX_GetFarsyncAsyncOption(UNIT, s);
        f.cycle_time = 600;
        f.set_index = 1;
        JNI.KX_SetFarsyncAsyncOption(UNIT, s, f);
        assertSameFields(f, JNI.KX_GetFarsyncAsyncOption(UNIT, s));
        FarsyncAsyncOption fast = JNI.KX_GetFarsyncAsyncOption(UNIT, s);
        fast.cycle_time = 29;
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetFarsyncAsyncOption(UNIT, s, fast));

        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_SetDMLU(UNIT, s, dmlus(4000)));
        c.cmd_count = 0;
        c.cmddev[0].cmd_valid = 0;
        c.cmddev[0].set_valid = 0;
        c.cmddev[0].cmd_lu = -1;
        JNI.KX_SetCommandDevice(UNIT, s, c);
        JNI.KX_SetDMLU(UNIT, s, dmlus());
        assertEquals(0, JNI.KX_GetDMLU(UNIT, s).dmlu_count);
    }

    @Test
    public void withoutADmluNoPairAndNoMigrationStarts() throws Exception {
        assertTrue(hostRefused("create", "mirror", "1", "2").contains("code 12296"));
        JNI.KX_AddLuMigrationReserveLU(UNIT, s, reserve(5));
        expect(Sim.BUSY, () -> JNI.KX_StartLuMigration(UNIT, s, request(4, 5, 1)));
        assertEquals("nothing started", 1, JNI.KX_GetLuMigrationState(UNIT, s).lun[5]);
        assertEquals(0, JNI.KX_GetLuMigrationState(UNIT, s).lun[4]);
        JNI.KX_DeleteLuMigrationReserveLU(UNIT, s, reserve(5));
        assertEquals(0, JNI.KX_GetPairInformation(UNIT, s).pair_count);
    }

    private static MirrorLUInfo mirror(int secondary) throws Exception {
        PairInfo info = JNI.KX_GetPairInformation(UNIT, s);
        for (int i = 0; i < info.pair_count; i++) {
            for (int k = 0; k < info.lu[i].mirror_count; k++) {
                if (info.lu[i].m_info[k].lun == secondary) {
                    return info.lu[i].m_info[k];
                }
            }
        }
        throw new AssertionError("no pair with secondary LU " + secondary);
    }

    @Test
    public void aMirrorCopiesOverTheClockThenSplits() throws Exception {
        assertEquals("primary and secondary alike", JNI.KX_GetLogicalUnit1(UNIT, s, 1).capacity,
                JNI.KX_GetLogicalUnit1(UNIT, s, 2).capacity);
        JNI.KX_SetDMLU(UNIT, s, dmlus(0));
        makeLu(40, 0, 2_000_000);
        assertTrue(hostRefused("create", "mirror", "1", "40").contains("code 12295"));  // smaller
        Sim.tool("pair", "create", "mirror", "1", "2");
        MirrorLUInfo m = mirror(2);
        assertEquals("copy", 1, m.pair_status);
        assertEquals(100, m.changed_rate);
        // 100 GB at 400 MB/s: half of it in 125 s.
        Sim.clock(125);
        m = mirror(2);
        assertEquals(1, m.pair_status);
        assertTrue("changed_rate " + m.changed_rate, m.changed_rate >= 49 && m.changed_rate <= 51);
        assertTrue(hostRefused("split", "mirror", "2").contains("code 12296"));  // still copying
        expect(Sim.BUSY, () -> JNI.KX_LogicalUnitDeleteByLUN(UNIT, s, 2));
        expect(Sim.BUSY, () -> JNI.KX_SetDMLU(UNIT, s, dmlus()));  // pairs need it
        Sim.clock(126);
        m = mirror(2);
        assertEquals("pair", 2, m.pair_status);
        assertEquals(0, m.changed_rate);
        Sim.tool("pair", "split", "mirror", "2");
        assertEquals("split", 3, mirror(2).pair_status);

        Sim.tool("pair", "delete", "mirror", "2");
        assertEquals(0, JNI.KX_GetPairInformation(UNIT, s).pair_count);
        JNI.KX_LogicalUnitDeleteByLUN(UNIT, s, 40);
        JNI.KX_SetDMLU(UNIT, s, dmlus());
    }

    private static LuMigrationPairInfo migration(int source) throws Exception {
        LuMigrationInformation info = JNI.KX_GetLuMigrationInformation(UNIT, s);
        for (LuMigrationPairInfo p : info.pair_lu) {
            if (p.pvol_lun == source) {
                return p;
            }
        }
        throw new AssertionError("no migration of LU " + source);
    }

    @Test
    public void aMigrationMovesAnLuWhenSplitAfterItsCopy() throws Exception {
        JNI.KX_SetDMLU(UNIT, s, dmlus(0));
        LogicalUnit source = JNI.KX_GetLogicalUnit1(UNIT, s, 3);
        int otherGroup = 1 - source.rgNumber;
        makeLu(41, otherGroup, source.capacity - 2048L);
        makeLu(42, otherGroup, source.capacity);
        JNI.KX_AddLuMigrationReserveLU(UNIT, s, reserve(41));
        JNI.KX_AddLuMigrationReserveLU(UNIT, s, reserve(42));
        expect(Sim.CAPACITY, () -> JNI.KX_StartLuMigration(UNIT, s, request(3, 41, 2)));  // smaller
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_StartLuMigration(UNIT, s, request(4000, 42, 2)));
        expect(Sim.EXISTS, () -> JNI.KX_AddLuMigrationReserveLU(UNIT, s, reserve(42)));

        JNI.KX_StartLuMigration(UNIT, s, request(3, 42, 0));
        int[] state = JNI.KX_GetLuMigrationState(UNIT, s).lun;
        assertEquals("source copying", 2, state[3]);
        assertEquals("target being copied", 4, state[42]);
        assertEquals("reserve LU", 1, state[41]);
        assertEquals(0, migration(3).percent);
        // From the slow pace to the fast one: the rest at 1 GB/s.
        Sim.clock(100);
        int slow = migration(3).percent;
        assertTrue("percent " + slow, slow > 0 && slow < 100);
        JNI.KX_ChangeCopyPace(UNIT, s, request(3, 42, 2));
        expect(Sim.BUSY, () -> JNI.KX_SplitLuMigration(UNIT, s, request(3, 42, 2)));
        Sim.clock(100);
        LuMigrationPairInfo p = migration(3);
        assertEquals("copied", 2, p.migration_state);
        assertEquals(100, p.percent);
        assertEquals(2, p.copying_pace);
        JNI.KX_SplitLuMigration(UNIT, s, request(3, 42, 2));
        assertEquals("LU 3 now lies where the reserve LU lay", otherGroup, JNI.KX_GetLogicalUnit1(UNIT, s, 3).rgNumber);
        assertEquals(source.rgNumber, JNI.KX_GetLogicalUnit1(UNIT, s, 42).rgNumber);
        assertEquals("still reserved", 1, JNI.KX_GetLuMigrationState(UNIT, s).lun[42]);
        Sim.consistent(s);

        // A cancelled migration moves nothing.
        JNI.KX_StartLuMigration(UNIT, s, request(3, 42, 1));
        JNI.KX_CancelLuMigration(UNIT, s, request(3, 42, 1));
        assertEquals(otherGroup, JNI.KX_GetLogicalUnit1(UNIT, s, 3).rgNumber);
        assertEquals(0, JNI.KX_GetLuMigrationState(UNIT, s).lun[3]);

        JNI.KX_DeleteLuMigrationReserveLU(UNIT, s, reserve(41));
        JNI.KX_DeleteLuMigrationReserveLU(UNIT, s, reserve(42));
        JNI.KX_SetDMLU(UNIT, s, dmlus());
    }

    @Test
    public void bootOptionsReadBackAndTheirFileReimportsTheSame() throws Exception {
        BootOption b = JNI.KX_GetBootOption(UNIT, s);
        b.startup_attr = 2;
        b.delay_time = 90;
        b.drvdetachmode = 1;
        b.vendor = "LABCO";
        b.product = "TEST-ARRAY-2";
        JNI.KX_SetBootOption(UNIT, s, b);
        assertSameFields(b, JNI.KX_GetBootOption(UNIT, s));
        Path file = Sim.dir().resolve("boot.txt");
        JNI.KX_BootOptionExport(UNIT, s, file.toString());
        List<String> lines = Files.readAllLines(file, StandardCharsets.UTF_8);
        assertEquals("pernix-sim boot-option 1", lines.get(0));
        assertTrue(lines.contains("delay_time=90"));
        assertEquals("end", lines.get(lines.size() - 1));

        BootOption other = JNI.KX_GetBootOption(UNIT, s);
        other.delay_time = 5;
        other.vendor = "OTHER";
        JNI.KX_SetBootOption(UNIT, s, other);
        JNI.KX_BootOptionImport(UNIT, s, file.toString());
        assertSameFields(b, JNI.KX_GetBootOption(UNIT, s));

        // A malformed file changes nothing; a missing one answers its own code.
        Path bad = Sim.dir().resolve("bad.txt");
        Files.writeString(bad, String.join("\n", lines).replace("delay_time=90", "delay_time=ninety") + "\n");
        JNI.KX_SetBootOption(UNIT, s, other);
        expect(12305, () -> JNI.KX_BootOptionImport(UNIT, s, bad.toString()));
        assertSameFields(other, JNI.KX_GetBootOption(UNIT, s));
        expect(12304, () -> JNI.KX_BootOptionImport(UNIT, s, Sim.dir().resolve("none.txt").toString()));
    }

    @Test
    public void faultRulesFailReplicationCallsAndChangeNothing() throws Exception {
        Sim.tool("faults", "add", "KX_SetDMLU", "12300", "@1");
        expect(12300, () -> JNI.KX_SetDMLU(UNIT, s, dmlus(5)));
        assertEquals(0, JNI.KX_GetDMLU(UNIT, s).dmlu_count);
        Sim.tool("faults", "add", "KX_GetPairInformation", "12297", "@always");
        expect(Sim.DB_ERROR, () -> JNI.KX_GetPairInformation(UNIT, s));
    }
}
