package simtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;

import java.util.ArrayList;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import org.junit.Test;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.LogicalUnit;
import orvane.str.diskarray.RgDetail;

/**
 * Two JVMs change one database at once: both carve LUs out of the same RAID
 * group's free space (each allocation reads the free areas and writes one),
 * so an update lost or interleaved shows as a missing or overlapping LU.
 */
public class ConcurrencyTest {
    private static final int PER_CHILD = 25;
    private static final int BLOCKS = 1953125;  // 1 GB

    @Test(timeout = 180_000)
    public void twoJvmsCarvingOneRaidGroupLoseNothing() throws Exception {
        KXSessionInfo s = Sim.admin();
        orvane.str.diskarray.CreateRaidGroup c = Child.automatic(5, 5, 1);
        c.rgnum = 70;
        JNI.KX_CreateRaidGroup(UNIT, s, c);
        RgDetail before = group(s, 70);

        long start = System.nanoTime();
        List<String> acked = new ArrayList<>();
        try (Sim.Proc a = new Sim.Proc(null, "lus", "1000", "" + PER_CHILD, "70", "" + BLOCKS);
             Sim.Proc b = new Sim.Proc(null, "lus", "2000", "" + PER_CHILD, "70", "" + BLOCKS)) {
            for (Sim.Proc p : new Sim.Proc[] {a, b}) {
                List<String> out = p.finishOk(150);
                assertEquals("refusals: " + out, List.of(), Sim.tagged(out, "ERR"));
                assertTrue(out.toString(), out.contains("DONE"));
                acked.addAll(Sim.tagged(out, "ACK"));
            }
        }
        double seconds = (System.nanoTime() - start) / 1e9;
        System.out.printf("two JVMs made %d LUs in %.1f s%n", acked.size(), seconds);
        assertEquals(2 * PER_CHILD, acked.size());

        Set<Integer> inGroup = new HashSet<>();
        for (LogicalUnit l : JNI.KX_GetLogicalUnit(UNIT, s)) {
            if (l.lu_valid != 0 && l.rgNumber == 70) {
                assertEquals(BLOCKS, l.capacity);
                inGroup.add(l.luNumber);
            }
        }
        for (String n : acked) {
            assertTrue("LU " + n + " was acknowledged and is gone", inGroup.contains(Integer.parseInt(n)));
        }
        assertEquals(2 * PER_CHILD, inGroup.size());
        RgDetail after = group(s, 70);
        assertEquals(Sim.wide(before.rest_capa_h, before.rest_capa_l) - 2L * PER_CHILD * BLOCKS,
                Sim.wide(after.rest_capa_h, after.rest_capa_l));
        Sim.consistent(s);
        Sim.logout(s);
    }

    static RgDetail group(KXSessionInfo s, int rg) throws Exception {
        for (RgDetail g : JNI.KX_GetRaidGroupInformation(UNIT, s).rg) {
            if (g.valid_index != 0 && g.rgnum == rg) {
                return g;
            }
        }
        throw new AssertionError("no RAID group " + rg);
    }
}
