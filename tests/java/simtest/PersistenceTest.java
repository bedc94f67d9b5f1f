package simtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;

import java.util.List;
import org.junit.AfterClass;
import org.junit.BeforeClass;
import org.junit.Test;
import org.junit.experimental.categories.Category;
import orvane.str.diskarray.DiskDriveRestoration;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.LogicalUnit;
import orvane.str.diskarray.RgDetail;

/** The model lives in the database: one JVM's changes are there for the next. */
public class PersistenceTest {
    private static KXSessionInfo s;

    @BeforeClass
    public static void login() throws Exception {
        s = Sim.admin();
    }

    @AfterClass
    public static void logout() throws Exception {
        Sim.logout(s);
    }

    @Test
    @Category(Smoke.class)
    public void changesMadeHereAreThereForAnotherJvm() throws Exception {
        JNI.KX_CreateRaidGroup(UNIT, s, rg(40));
        JNI.KX_LogicalUnitAdd(UNIT, s, Child.lu(3000, 40, 1953125));
        DiskDriveRestoration r = JNI.KX_GetDiskDriveRestoration(UNIT, s);
        r.interval = 4321;
        JNI.KX_SetDiskDriveRestoration(UNIT, s, r);

        List<String> out;
        try (Sim.Proc child = new Sim.Proc(null, "dump", "3000")) {
            out = child.finishOk(120);
        }
        RgDetail g = group(40);
        assertTrue(out.toString(), Sim.tagged(out, "RG").contains("40 1 " + Sim.wide(g.total_capa_h, g.total_capa_l)
                + " " + Sim.wide(g.rest_capa_h, g.rest_capa_l)));
        assertEquals(List.of("3000 40 1953125"), Sim.tagged(out, "LU"));
        assertEquals(List.of("interval 4321"), Sim.tagged(out, "SETTING"));
    }

    @Test
    @Category(Smoke.class)
    public void changesMadeInAnotherJvmAreHere() throws Exception {
        List<String> out;
        try (Sim.Proc child = new Sim.Proc(null, "make")) {
            out = child.finishOk(120);
        }
        int rg = Integer.parseInt(Sim.tagged(out, "RG").get(0));
        assertEquals(List.of("4000"), Sim.tagged(out, "LU"));
        assertEquals(5, group(rg).parity_hdu_count);
        LogicalUnit lu = JNI.KX_GetLogicalUnit1(UNIT, s, 4000);
        assertEquals(rg, lu.rgNumber);
        assertEquals(1953125, lu.capacity);
        // and the session of this JVM still stands beside the other's
        JNI.KX_GetOwnUserPermission(UNIT, s);
    }

    private static orvane.str.diskarray.CreateRaidGroup rg(int number) {
        orvane.str.diskarray.CreateRaidGroup c = Child.automatic(1, 2, 1);
        c.rgnum = number;
        return c;
    }

    private static RgDetail group(int rg) throws Exception {
        for (RgDetail g : JNI.KX_GetRaidGroupInformation(UNIT, s).rg) {
            if (g.valid_index != 0 && g.rgnum == rg) {
                return g;
            }
        }
        throw new AssertionError("no RAID group " + rg);
    }
}
