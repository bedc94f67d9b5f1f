package simtest;

import static org.junit.Assert.assertTrue;
import static org.junit.Assert.fail;

import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.Comparator;
import java.util.List;
import java.util.Map;
import java.util.TreeMap;
import kxtest.HostileInputs;
import orvane.str.diskarray.DiskArrayException;
import orvane.str.diskarray.DiskArrayUtilityJNI;
import orvane.str.diskarray.KXSessionInfo;
import org.junit.Test;

/**
 * Hostile Java arguments through the bridge into the simulated array: every
 * native, for each seed, with arguments from {@link HostileInputs}; on half
 * the calls the unit name and session are the real ones, so the hostile
 * records reach the model rather than stopping at the login check.  The array
 * must survive whatever the bridge passes on: the JVM lives (the runner fails
 * on any JNI warning), every failure is one of the simulator's documented
 * codes (12289-12308), one of the bridge's own (2817, 65535, 258) or the JVM's
 * ArrayIndexOutOfBoundsException from an input array shorter than its table,
 * and the database is still sound afterwards (pernix-sim show).
 *
 * Not a *Test: the sim-hostile leg runs it by name.  Properties:
 * kx.hostile.seeds (default 6), kx.hostile.first (default 1),
 * kx.hostile.native (only this native), kx.hostile.trace (print each call
 * before it is made).  A failure names its native and seed.
 */
public class HostileSimulator {
    static final DiskArrayUtilityJNI JNI = Sim.JNI;

    static final boolean TRACE = Boolean.getBoolean("kx.hostile.trace");

    final List<String> problems = new ArrayList<>();
    final Map<Integer, Integer> codes = new TreeMap<>();
    KXSessionInfo session;
    long calls, reached, resets;

    @Test
    public void theArraySurvivesHostileArguments() throws Exception {
        List<Method> natives = new ArrayList<>();
        for (Method m : DiskArrayUtilityJNI.class.getDeclaredMethods()) {
            if (Modifier.isNative(m.getModifiers())) natives.add(m);
        }
        natives.sort(Comparator.comparing(Method::getName));
        assertTrue("natives declared: " + natives.size(), natives.size() > 250);
        String only = System.getProperty("kx.hostile.native");
        long first = Long.getLong("kx.hostile.first", 1);
        long count = Long.getLong("kx.hostile.seeds", 6);
        session = Sim.admin();
        long start = System.nanoTime();
        for (long seed = first; seed < first + count && problems.size() <= 20; seed++) {
            for (int n = 0; n < natives.size() && problems.size() <= 20; n++) {
                Method m = natives.get(n);
                if (only != null && !only.equals(m.getName())) continue;
                callOnce(m, seed, seed * 0x100000001B3L + n * 0x9E3779B97F4A7C15L);
            }
        }
        System.out.printf("sim-hostile: %d seed(s) from %d, %d call(s), %d with the real session, %d reset(s), %.1f s;"
                          + " codes %s%n", count, first, calls, reached, resets, (System.nanoTime() - start) / 1e9, codes);
        // The array is still whole: its tool reads every table.
        Sim.tool("show");
        if (!problems.isEmpty()) {
            fail(problems.size() + " problem(s) (replay with -Dkx.hostile.first=<seed> -Dkx.hostile.seeds=1"
                 + " -Dkx.hostile.native=<native>):\n" + String.join("\n", problems));
        }
    }

    void callOnce(Method m, long seed, long inputSeed) throws Exception {
        HostileInputs in = new HostileInputs(inputSeed);
        Object[] args = in.args(m);
        Class<?>[] types = m.getParameterTypes();
        boolean real = Math.floorMod(inputSeed, 2L) == 0;
        if (real) {
            boolean unit = false;
            for (int i = 0; i < types.length; i++) {
                if (types[i] == KXSessionInfo.class) args[i] = session;
                // The unit's name comes first among the Strings.
                if (types[i] == String.class && !unit) {
                    args[i] = Sim.UNIT;
                    unit = true;
                }
            }
            reached++;
        }
        String where = m.getName() + " seed " + seed;
        calls++;
        if (TRACE) System.out.println("sim-hostile: " + where);
        Throwable thrown = null;
        long t0 = System.nanoTime();
        try {
            m.invoke(JNI, args);
        } catch (InvocationTargetException e) {
            thrown = e.getCause();
        }
        long ms = (System.nanoTime() - t0) / 1_000_000;
        if (ms > 5000) problems.add(where + ": took " + ms + " ms");
        if (thrown == null) return;
        if (thrown instanceof DiskArrayException) {
            int code = ((DiskArrayException) thrown).getCode();
            codes.merge(code, 1, Integer::sum);
            boolean documented = (code >= 12289 && code <= 12308) || code == 2817 || code == 65535 || code == 258;
            if (!documented) problems.add(where + ": code " + code + ", documented by neither side");
            // A hostile call may have ended the session (a logout, a changed
            // password, an account removed): log in again; a reset when even
            // that fails.
            if (real && (code == Sim.NOT_LOGGED_IN || code == Sim.EXPIRED)) renewSession(where);
            // ... or removed or renamed the unit: the default array again.
            if (real && code == Sim.UNKNOWN_UNIT) {
                Sim.tool("reset", "--yes");
                resets++;
                renewSession(where);
            }
            return;
        }
        if (!(thrown instanceof ArrayIndexOutOfBoundsException)) problems.add(where + ": threw " + thrown);
    }

    void renewSession(String where) throws Exception {
        try {
            session = Sim.admin();
        } catch (DiskArrayException | AssertionError e) {
            Sim.tool("reset", "--yes");
            try {
                session = Sim.admin();
            } catch (DiskArrayException x) {
                problems.add(where + ": no login after a reset: code " + x.getCode());
            }
        }
    }
}
