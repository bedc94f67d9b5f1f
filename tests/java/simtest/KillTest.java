package simtest;

import static org.junit.Assert.assertTrue;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;

import java.util.HashSet;
import java.util.Set;
import org.junit.Test;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.LogicalUnit;

/**
 * A JVM killed (kill -9) in the middle of a stream of changes leaves every
 * change it had acknowledged in the database, and nothing half made.
 */
public class KillTest {
    @Test(timeout = 180_000)
    public void everyAcknowledgedChangeSurvivesAKill() throws Exception {
        KXSessionInfo s = Sim.admin();
        orvane.str.diskarray.CreateRaidGroup c = Child.automatic(5, 5, 1);
        c.rgnum = 71;
        JNI.KX_CreateRaidGroup(UNIT, s, c);
        Set<Integer> acked = new HashSet<>();
        // Three kills, each after a different number of acknowledgements (the
        // last of them at any point of the next call).
        int[] after = {3, 11, 24};
        for (int round = 0; round < after.length; round++) {
            try (Sim.Proc p = new Sim.Proc(null, "lus", "" + (1000 + 500 * round), "400", "71", "2048")) {
                int seen = 0;
                while (seen < after[round]) {
                    String line = p.next(60_000);
                    assertTrue("the child stopped before its " + after[round] + "th change: " + p.output(),
                            line != null);
                    assertTrue(line, !line.startsWith("ERR") && !line.equals("DONE"));
                    if (line.startsWith("ACK ")) {
                        acked.add(Integer.parseInt(line.substring(4)));
                        seen++;
                    }
                }
                p.process.destroyForcibly();
                p.process.waitFor();
                // What it said before it died counts too: read to the end of its
                // output (a loaded machine may take seconds to hand it over).
                for (String line; (line = p.next(60_000)) != null; ) {
                    if (line.startsWith("ACK ")) {
                        acked.add(Integer.parseInt(line.substring(4)));
                    }
                }
            }
        }
        Set<Integer> there = new HashSet<>();
        for (LogicalUnit l : JNI.KX_GetLogicalUnit(UNIT, s)) {
            if (l.lu_valid != 0 && l.rgNumber == 71) {
                there.add(l.luNumber);
            }
        }
        for (int lun : acked) {
            assertTrue("LU " + lun + " was acknowledged before the kill and is gone", there.contains(lun));
        }
        // At most the one call in flight at each kill made an LU nobody heard of.
        assertTrue("LUs: " + there.size() + ", acknowledged " + acked.size(), there.size() <= acked.size() + after.length);
        Sim.consistent(s);
        // The database is sound for the tool as well.
        assertTrue(Sim.tool("show").contains(UNIT));
        Sim.logout(s);
    }
}
