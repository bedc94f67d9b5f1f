package simtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;
import static simtest.Sim.assertSameFields;
import static simtest.Sim.expect;

import java.util.Arrays;
import org.junit.After;
import org.junit.AfterClass;
import org.junit.BeforeClass;
import org.junit.Test;
import org.junit.experimental.categories.Category;
import orvane.str.diskarray.HGConfig;
import orvane.str.diskarray.HGOption;
import orvane.str.diskarray.HGOptionInfo;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.LuAccessLevel;
import orvane.str.diskarray.LuGuard;
import orvane.str.diskarray.LuMapping;
import orvane.str.diskarray.LuMappingHGInfo;
import orvane.str.diskarray.MappingGuardList;
import orvane.str.diskarray.PortOption;

/**
 * Host groups, their options, LU mapping and its guard, port options and the
 * LU guard through the bridge: settings read back field by field, refusals
 * with their codes and nothing changed, retention terms on the stepped clock.
 */
public class HostAccessTest {
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

    private static int makeGroup(int ctl, int port, String name) throws Exception {
        HGConfig c = new HGConfig();
        c.hgname = name;
        JNI.KX_CreateHG(UNIT, s, ctl, port, -1, c);
        var hg = JNI.KX_GetHGList(UNIT, s).ctl[ctl].port[port].hg;
        for (int i = 0; i < hg.length; i++) {
            if (hg[i].valid != 0 && name.equals(hg[i].hgname)) {
                return i;
            }
        }
        throw new AssertionError("no host group " + name + " on " + ctl + "/" + port);
    }

    private static LuMappingHGInfo mapping(int ctl, int port, int hg) throws Exception {
        return (LuMappingHGInfo) JNI.KX_GetLuMappingList(UNIT, s, ctl, port, hg)[1];
    }

    private static LuMappingHGInfo entries(int... hostLuToLu) {
        LuMappingHGInfo m = new LuMappingHGInfo();
        Arrays.fill(m.lu, -1);
        for (int i = 0; i + 1 < hostLuToLu.length; i += 2) {
            m.lu[hostLuToLu[i]] = hostLuToLu[i + 1];
        }
        return m;
    }

    @Test
    @Category(Smoke.class)
    public void hostGroupOptionsAndMappingReadBack() throws Exception {
        int hg = makeGroup(0, 1, "db-servers");
        assertTrue("the lowest free number from 1", hg >= 1);
        HGOptionInfo o = JNI.KX_GetHGOption(UNIT, s, 0, 1, hg);
        o.platform_id = 3;
        o.alternate_path_id = 3;
        o.failover_id = 2;
        o.special_mode_id = 4;
        o.option = 0x85;
        o.option2[0] = 0x40;
        o.option2[1] = 3;
        o.option3 = 0x11;
        JNI.KX_SetHGOption(UNIT, s, 0, 1, hg, o);
        assertSameFields(o, JNI.KX_GetHGOption(UNIT, s, 0, 1, hg));

        HGOptionInfo bad = JNI.KX_GetHGOption(UNIT, s, 0, 1, hg);
        bad.platform_id = 2;  // Windows does not admit the volume manager's paths
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetHGOption(UNIT, s, 0, 1, hg, bad));
        assertSameFields(o, JNI.KX_GetHGOption(UNIT, s, 0, 1, hg));

        JNI.KX_SetLuMappingList(UNIT, s, 0, 1, hg, 0, entries(0, 2, 7, 5));
        Object[] got = JNI.KX_GetLuMappingList(UNIT, s, 0, 1, hg);
        assertEquals(2, got[0]);
        assertSameFields(entries(0, 2, 7, 5), got[1]);
        JNI.KX_SetLuMappingList(UNIT, s, 0, 1, hg, 1, entries(1, 3));
        assertSameFields(entries(0, 2, 1, 3, 7, 5), mapping(0, 1, hg));
        // Refused: an LU not made, a host LU taken, an LU twice in a group; nothing changes.
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_SetLuMappingList(UNIT, s, 0, 1, hg, 1, entries(9, 4000)));
        expect(Sim.EXISTS, () -> JNI.KX_SetLuMappingList(UNIT, s, 0, 1, hg, 1, entries(7, 6)));
        expect(Sim.EXISTS, () -> JNI.KX_SetLuMappingList(UNIT, s, 0, 1, hg, 1, entries(8, 2)));
        assertSameFields(entries(0, 2, 1, 3, 7, 5), mapping(0, 1, hg));
        // A mapped LU is held.
        expect(Sim.BUSY, () -> JNI.KX_LogicalUnitDeleteByLUN(UNIT, s, 5));
    }

    @Test
    public void wholeTablesReadBackAndMoveLusInOneCall() throws Exception {
        int a = makeGroup(1, 0, "web-a");
        int b = makeGroup(1, 0, "web-b");
        LuMapping m = JNI.KX_GetLuMappingListAll(UNIT, s);
        m.ctl[1].port[0].hg[a].lu[0] = 4;
        m.ctl[1].port[0].hg[a].lu[1] = 6;
        JNI.KX_SetLuMappingListAll(UNIT, s, m);
        assertSameFields(m, JNI.KX_GetLuMappingListAll(UNIT, s));
        // LU 4 moves from group a to group b in one call.
        m.ctl[1].port[0].hg[a].lu[0] = -1;
        m.ctl[1].port[0].hg[b].lu[5] = 4;
        JNI.KX_SetLuMappingListAll(UNIT, s, m);
        assertSameFields(m, JNI.KX_GetLuMappingListAll(UNIT, s));
        LuMapping missing = JNI.KX_GetLuMappingListAll(UNIT, s);
        missing.ctl[1].port[0].hg[b].lu[6] = 4095;
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_SetLuMappingListAll(UNIT, s, missing));
        assertSameFields(m, JNI.KX_GetLuMappingListAll(UNIT, s));

        HGOption all = JNI.KX_GetHGOptionAll(UNIT, s);
        all.ctl[1].port[0].hg[a].platform_id = 1;
        all.ctl[1].port[0].hg[a].option = 1;
        all.ctl[1].port[0].hg[b].special_mode_id = 2;
        all.ctl[1].port[0].hg[b].option3 = 2;
        JNI.KX_SetHGOptionAll(UNIT, s, all);
        assertSameFields(all, JNI.KX_GetHGOptionAll(UNIT, s));

        // The mapping guard fixes a mapping until it is lifted.
        MappingGuardList g = JNI.KX_GetMappingGuardList(UNIT, s);
        g.lumap_guard[6] = 1;
        JNI.KX_SetMappingGuardList(UNIT, s, g);
        assertSameFields(g, JNI.KX_GetMappingGuardList(UNIT, s));
        LuMapping unmap = JNI.KX_GetLuMappingListAll(UNIT, s);
        unmap.ctl[1].port[0].hg[a].lu[1] = -1;
        expect(Sim.BUSY, () -> JNI.KX_SetLuMappingListAll(UNIT, s, unmap));
        g.lumap_guard[6] = 0;
        JNI.KX_SetMappingGuardList(UNIT, s, g);
        JNI.KX_SetLuMappingListAll(UNIT, s, unmap);
        assertSameFields(unmap, JNI.KX_GetLuMappingListAll(UNIT, s));
    }

    @Test
    public void portOptionsReadBack() throws Exception {
        PortOption p = JNI.KX_GetPortOption(UNIT, s);
        p.ctl[0].lip_mode[2] = 2;
        p.ctl[1].port_common_opt[3] = 0xA5;
        JNI.KX_SetPortOption(UNIT, s, p);
        assertSameFields(p, JNI.KX_GetPortOption(UNIT, s));
        PortOption bad = JNI.KX_GetPortOption(UNIT, s);
        bad.ctl[0].lip_mode[0] = 3;
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetPortOption(UNIT, s, bad));
        assertSameFields(p, JNI.KX_GetPortOption(UNIT, s));
    }

    /** Steps the clock by days: the session would expire, so a new one follows. */
    private static void days(double d) throws Exception {
        Sim.clock((long) (d * 86400));
        s = Sim.admin();
    }

    @Test
    public void retentionTermsRunDownWithTheClock() throws Exception {
        LuAccessLevel l = new LuAccessLevel();
        l.lu = 3;
        l.access_level = 1;
        l.retention_term = 2;
        JNI.KX_SetLuAccessLevel(UNIT, s, l);
        LuGuard g = JNI.KX_GetLuGuardInformation(UNIT, s).lu[3];
        assertEquals(1, g.access_level);
        assertEquals(1, g.access_level_status);
        assertEquals("read only", 1, g.access_attr);
        assertEquals(2, g.retention_term);
        expect(Sim.BUSY, () -> JNI.KX_LogicalUnitDeleteByLUN(UNIT, s, 3));
        LuAccessLevel back = new LuAccessLevel();
        back.lu = 3;
        expect(Sim.BUSY, () -> JNI.KX_SetLuAccessLevel(UNIT, s, back));  // the term runs

        days(1.5);
        assertEquals("a day and a half left of two, rounded up", 1,
                JNI.KX_GetLuGuardInformation(UNIT, s).lu[3].retention_term);
        JNI.KX_ExtendRetentionTerm(UNIT, s, 3, 3);
        days(3);
        assertEquals("half a day left", 1, JNI.KX_GetLuGuardInformation(UNIT, s).lu[3].retention_term);
        days(1);
        g = JNI.KX_GetLuGuardInformation(UNIT, s).lu[3];
        assertEquals("run out", 0, g.retention_term);
        assertEquals(0, g.access_level_status);

        JNI.KX_SetExpirationLock(UNIT, s, 1);
        assertEquals(1, JNI.KX_GetLuGuardInformation(UNIT, s).expirationlock);
        expect(Sim.BUSY, () -> JNI.KX_SetLuAccessLevel(UNIT, s, back));  // locked once run out
        JNI.KX_SetExpirationLock(UNIT, s, 0);
        JNI.KX_SetLuAccessLevel(UNIT, s, back);
        assertEquals(0, JNI.KX_GetLuGuardInformation(UNIT, s).lu[3].access_level);
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetExpirationLock(UNIT, s, 2));
    }

    @Test
    public void faultRulesFailMappingCallsAndChangeNothing() throws Exception {
        int hg = makeGroup(0, 2, "faulted");
        Sim.tool("faults", "add", "KX_SetLuMappingList", "12297", "@1");
        expect(Sim.DB_ERROR, () -> JNI.KX_SetLuMappingList(UNIT, s, 0, 2, hg, 0, entries(0, 1)));
        assertSameFields(entries(), mapping(0, 2, hg));
        JNI.KX_SetLuMappingList(UNIT, s, 0, 2, hg, 0, entries(0, 1));
        assertSameFields(entries(0, 1), mapping(0, 2, hg));
        Sim.tool("faults", "add", "KX_GetHGOptionAll", "12296", "@always");
        expect(Sim.BUSY, () -> JNI.KX_GetHGOptionAll(UNIT, s));
    }
}
