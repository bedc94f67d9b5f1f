package simtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotEquals;
import static org.junit.Assert.assertTrue;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;
import static simtest.Sim.expect;

import java.util.List;
import java.util.Map;
import org.junit.After;
import org.junit.Test;
import orvane.str.diskarray.KXSessionInfo;

/** Injected faults reach Java as DiskArrayException with the rule's code, and do nothing else. */
public class FaultTest {
    @After
    public void clear() throws Exception {
        Sim.tool("faults", "clear");
    }

    @Test
    public void rulesFromTheEnvironmentFailTheirCallsInThatJvm() throws Exception {
        Map<String, String> env = Map.of("PERNIX_SIM_FAULTS", "KX_GetUnitParam=12296;KX_GetUnitCount=12300@2");
        List<String> out;
        try (Sim.Proc p = new Sim.Proc(env, "calls", "param", "count", "count", "count", "table", "param")) {
            out = p.finishOk(120);
        }
        assertEquals(List.of("param 12296", "count 0", "count 12300", "count 0", "table 0", "param 12296"),
                Sim.tagged(out, "CODE"));
        // The rules were the child's alone.
        assertEquals(UNIT, JNI.KX_GetUnitParam(UNIT).unit_name);
    }

    @Test
    public void aRuleInTheDatabaseFailsTheNthCallAndNothingHappens() throws Exception {
        KXSessionInfo s = Sim.admin();
        int groups = JNI.KX_GetRaidGroupInformation(UNIT, s).rg_count;
        Sim.tool("faults", "add", "KX_CreateRaidGroup", "12295", "@2");
        JNI.KX_CreateRaidGroup(UNIT, s, Child.automatic(1, 2, 1));
        expect(12295, () -> JNI.KX_CreateRaidGroup(UNIT, s, Child.automatic(1, 2, 1)));
        assertEquals("the failed call made a RAID group", groups + 1, JNI.KX_GetRaidGroupInformation(UNIT, s).rg_count);
        JNI.KX_CreateRaidGroup(UNIT, s, Child.automatic(1, 2, 1));
        assertEquals(groups + 2, JNI.KX_GetRaidGroupInformation(UNIT, s).rg_count);

        // A rule for every function, on a getter that returns an object.
        Sim.tool("faults", "add", "*", "12297", "@always");
        expect(12297, () -> JNI.KX_GetRaidGroupInformation(UNIT, s));
        expect(12297, () -> JNI.KX_GetUnitCount());
        Sim.tool("faults", "clear");
        Sim.consistent(s);
        Sim.logout(s);
    }

    @Test
    public void aSeededProbabilityFiresOnTheSameCallsEachTime() throws Exception {
        String first = pattern();
        String second = pattern();
        assertEquals(first, second);
        assertTrue(first, first.contains("x") && first.contains("."));
        assertNotEquals(first, first.replace('x', '.'));
    }

    /** 24 calls under a fresh rule firing with p = 0.5, seed 7: x fired, . passed. */
    private static String pattern() throws Exception {
        Sim.tool("faults", "clear");
        Sim.tool("faults", "add", "KX_GetUnitCount", "12296", "@p0.5:7");
        StringBuilder sb = new StringBuilder();
        for (int i = 0; i < 24; i++) {
            int code = Sim.codeOf(JNI::KX_GetUnitCount);
            assertTrue("code " + code, code == 0 || code == 12296);
            sb.append(code == 0 ? '.' : 'x');
        }
        return sb.toString();
    }
}
