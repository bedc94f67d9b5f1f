package kxtest;

import static org.junit.Assert.fail;

import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.IdentityHashMap;
import java.util.List;
import java.util.Map;
import org.junit.Test;

/**
 * Every native of the frame table called while the test double answers each
 * call with seeded random output bytes and a random result code, with plain
 * arguments (seed % 4 == 0), records filled with data (1) or hostile Java
 * arguments from {@link HostileInputs} (2, 3).  Whatever the bytes: the JVM
 * survives (the runner fails on any JNI warning), no block leaks or is
 * overrun, every result array has the same length whatever the library wrote
 * (a counted list at most its table, a described array its table's capacity),
 * no string is longer than its C field, and the only exceptions are
 * DiskArrayException with the library's code, 2817, 65535 or 258 (the library's
 * 65535 answered as the out-of-memory report), and the JVM's
 * ArrayIndexOutOfBoundsException from an input array shorter than its table.
 * Each call runs on a thread of its own with a small stack (kx.hostile.stack
 * bytes, default 256 KiB), so a native that reads or writes past a table in
 * its frame meets fresh pages or the stack's end, not stale data that hides it.
 *
 * Not a *Test: run it by name.  Properties: kx.hostile.seeds (how many, default
 * 40), kx.hostile.first (first seed, default 1), kx.hostile.seed (replay this one
 * seed), kx.hostile.native (only this native), kx.hostile.trace (print each
 * call before it is made).
 */
public class HostileLibrary extends BridgeTest {
    /**
     * Natives whose result array is sized by the library's count: their table's
     * capacity.  Every element of such an array is converted.
     */
    static final Map<String, Integer> COUNTED = Map.of(
        "KX_GetLabelList", 20, "KX_GetLabelList2", 64, "KX_FibreInfoPermissionImport", 128);

    final List<String> problems = new ArrayList<>();
    /** Per native, per array path in its result: the length first seen and the seed that showed it. */
    final Map<String, Map<String, long[]>> shapes = new HashMap<>();
    long calls;
    long results;  // calls that answered a result
    long arrays;   // result arrays whose length was checked
    long hostileCalls, hostileReached;  // calls with hostile arguments; those that reached the library
    final HostileInputs inputs = new HostileInputs(0);  // its result checks

    static long seedOf(long seed, int nativeIndex) {
        return seed * 0x100000001B3L + nativeIndex * 0x9E3779B97F4A7C15L;
    }

    @Test
    public void everyNativeSurvivesARandomLibrary() throws Exception {
        List<FrameTableTest.Row> rows = FrameTableTest.table();
        String only = System.getProperty("kx.hostile.native");
        long first = Long.getLong("kx.hostile.first", 1);
        long count = Long.getLong("kx.hostile.seeds", 40);
        String replay = System.getProperty("kx.hostile.seed");
        if (replay != null) {
            first = Long.parseLong(replay);
            count = 1;
        }
        long start = System.nanoTime();
        for (long seed = first; seed < first + count; seed++) {
            for (int n = 0; n < rows.size(); n++) {
                FrameTableTest.Row r = rows.get(n);
                if (only != null && !only.equals(r.name)) continue;
                callOnce(r, seed, seedOf(seed, n));
                if (problems.size() > 20) break;
            }
            if (problems.size() > 20) break;
        }
        System.out.printf("hostile: %d seed(s) from %d, %d call(s) (%d with hostile arguments, %d of them reached the"
                          + " library), %d result(s), %d array(s) checked, %.1f s%n", count, first, calls, hostileCalls,
                          hostileReached, results, arrays, (System.nanoTime() - start) / 1e9);
        if (!problems.isEmpty()) {
            fail(problems.size() + " problem(s) (replay with -Dkx.hostile.seed=<seed> -Dkx.hostile.native=<native>):\n"
                 + String.join("\n", problems));
        }
    }

    static final long STACK = Long.getLong("kx.hostile.stack", 256 << 10);
    static final boolean TRACE = Boolean.getBoolean("kx.hostile.trace");

    void callOnce(FrameTableTest.Row r, long seed, long fakeSeed) throws Exception {
        Object[] args;
        Class<?>[] types = r.method.getParameterTypes();
        int mode = (int) Math.floorMod(seed, 4L);
        boolean filled = mode == 1;
        boolean hostileArgs = mode >= 2;
        if (hostileArgs) {
            args = new HostileInputs(fakeSeed).args(r.method);
        } else {
            args = FrameTableTest.plainArgs(r.method);
            if (filled) {
                for (int i = 0; i < types.length; i++) {
                    if (FrameTableTest.isRecord(types[i])) args[i] = FrameTableTest.filled(types[i], null);
                }
            }
        }
        String where = r.name + " seed " + seed;
        if (TRACE) System.out.println("hostile: " + where);
        FakePernix.reset();
        FakePernix.hostile(fakeSeed);
        Object[] result = new Object[1];
        Throwable[] thrown = new Throwable[1];
        Exception[] refused = new Exception[1];  // the call could not be made: a fault of this test
        Thread t = new Thread(null, () -> {
            try {
                result[0] = r.method.invoke(jni, args);
            } catch (java.lang.reflect.InvocationTargetException e) {
                thrown[0] = e.getCause();
            } catch (IllegalAccessException | IllegalArgumentException e) {
                refused[0] = e;
            }
        }, "hostile-call", STACK);
        t.start();
        t.join();
        calls++;
        if (refused[0] != null) {
            problems.add(where + ": the test could not call it: " + refused[0]);
            return;
        }
        boolean called = FakePernix.calls(r.name) > 0;
        if (hostileArgs) {
            hostileCalls++;
            if (called) hostileReached++;
        }
        int rc = FakePernix.hostileResult();
        problems.addAll(seamFaults(where));
        if (thrown[0] != null) {
            Integer code = FrameTableTest.codeOf(thrown[0]);
            // The library's 65535 is answered as the out-of-memory report; an
            // input array shorter than its table (the filled records' arrays a
            // class leaves unmade are 2 long) leaves the JVM's exception pending.
            boolean outOfMemory = thrown[0] instanceof ClassNotFoundException
                && "java/lang/OutofMemoryError".equals(thrown[0].getMessage());
            boolean expected = code != null
                ? (called && code == rc) || code == 2817 || code == 65535 || code == 258
                : (outOfMemory && called && rc == 65535)
                  || (thrown[0] instanceof ArrayIndexOutOfBoundsException && (filled || hostileArgs));
            if (!expected) {
                problems.add(where + ": threw " + (code != null ? "code " + code : thrown[0])
                             + (called ? " (library result " + rc + ")" : " (library not called)"));
            }
            return;
        }
        results++;
        if (HostileInputs.ARGUMENT_SIZED.containsKey(r.name) && result[0] != null) {
            int asked = (Integer) args[java.util.Arrays.asList(types).indexOf(int.class)];
            if (Array.getLength(result[0]) != asked) {
                problems.add(where + ": result holds " + Array.getLength(result[0]) + " elements, " + asked + " asked");
            }
        }
        Map<String, long[]> seen = shapes.computeIfAbsent(r.name, k -> new HashMap<>());
        shape(r.name, where, seed, "result", result[0], true, seen, new IdentityHashMap<>());
        List<String> found = new ArrayList<>();
        inputs.check(result[0], found);
        for (String f : found) problems.add(where + ": " + f);
    }

    /** Checks the length of every array reachable from o against the first seen at its path. */
    void shape(String name, String where, long seed, String path, Object o, boolean top, Map<String, long[]> seen,
               Map<Object, Boolean> visited) throws IllegalAccessException {
        if (o == null || visited.put(o, true) != null) return;
        Class<?> c = o.getClass();
        if (c.isArray()) {
            int length = Array.getLength(o);
            arrays++;
            Integer capacity = top ? COUNTED.get(name) : null;
            if (top && HostileInputs.ARGUMENT_SIZED.containsKey(name)) {
                // checked against the argument
            } else if (capacity != null) {
                if (length > capacity) {
                    problems.add(where + ": " + path + " holds " + length + " elements, its table " + capacity);
                }
                for (int i = 0; i < length; i++) {
                    if (Array.get(o, i) == null) problems.add(where + ": " + path + "[" + i + "] not converted");
                }
            } else {
                long[] first = seen.putIfAbsent(path, new long[] {length, seed});
                if (first != null && first[0] != length) {
                    problems.add(where + ": " + path + " holds " + length + " elements, " + first[0]
                                 + " with seed " + first[1]);
                }
            }
            if (!c.getComponentType().isPrimitive()) {
                for (int i = 0; i < length; i++) {
                    shape(name, where, seed, path + "[]", Array.get(o, i), false, seen, visited);
                }
            }
            return;
        }
        if (!FrameTableTest.isRecord(c)) return;
        for (Field f : c.getFields()) {
            if (Modifier.isStatic(f.getModifiers()) || f.getType().isPrimitive()) continue;
            shape(name, where, seed, path + "." + f.getName(), f.get(o), false, seen, visited);
        }
    }
}
