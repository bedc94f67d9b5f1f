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
 * Every native of the frame table called with valid arguments while the test
 * double answers each call with seeded random output bytes and a random result
 * code.  Whatever the bytes: the JVM survives (the runner fails on any JNI
 * warning), no block leaks or is overrun, every result array has the same
 * length whatever the library wrote (a counted list at most its table), and
 * the only exceptions are DiskArrayException with the library's code, 2817,
 * 65535 or 258 (the library's 65535 answered as the out-of-memory report), and
 * the JVM's ArrayIndexOutOfBoundsException from an input array shorter than
 * its table.
 *
 * Not a *Test: run it by name.  Properties: kx.hostile.seeds (how many, default
 * 40), kx.hostile.first (first seed, default 1), kx.hostile.seed (replay this one
 * seed), kx.hostile.native (only this native).
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
        System.out.printf("hostile: %d seed(s) from %d, %d call(s), %d result(s), %d array(s) checked, %.1f s%n",
                          count, first, calls, results, arrays, (System.nanoTime() - start) / 1e9);
        if (!problems.isEmpty()) {
            fail(problems.size() + " problem(s) (replay with -Dkx.hostile.seed=<seed> -Dkx.hostile.native=<native>):\n"
                 + String.join("\n", problems));
        }
    }

    void callOnce(FrameTableTest.Row r, long seed, long fakeSeed) throws Exception {
        Object[] args = FrameTableTest.plainArgs(r.method);
        Class<?>[] types = r.method.getParameterTypes();
        // Odd seeds hand over input records filled with data rather than fresh ones.
        boolean filled = seed % 2 == 1;
        if (filled) {
            for (int i = 0; i < types.length; i++) {
                if (FrameTableTest.isRecord(types[i])) args[i] = FrameTableTest.filled(types[i], null);
            }
        }
        String where = r.name + " seed " + seed;
        FakePernix.reset();
        FakePernix.hostile(fakeSeed);
        Object result = null;
        Throwable thrown = null;
        try {
            result = r.method.invoke(jni, args);
        } catch (java.lang.reflect.InvocationTargetException e) {
            thrown = e.getCause();
        }
        calls++;
        boolean called = FakePernix.calls(r.name) > 0;
        int rc = FakePernix.hostileResult();
        problems.addAll(seamFaults(where));
        if (thrown != null) {
            Integer code = FrameTableTest.codeOf(thrown);
            // The library's 65535 is answered as the out-of-memory report; an
            // input array shorter than its table (the filled records' arrays a
            // class leaves unmade are 2 long) leaves the JVM's exception pending.
            boolean outOfMemory = thrown instanceof ClassNotFoundException
                && "java/lang/OutofMemoryError".equals(thrown.getMessage());
            boolean expected = code != null
                ? (called && code == rc) || code == 2817 || code == 65535 || code == 258
                : (outOfMemory && called && rc == 65535)
                  || (thrown instanceof ArrayIndexOutOfBoundsException && filled);
            if (!expected) {
                problems.add(where + ": threw " + (code != null ? "code " + code : thrown)
                             + (called ? " (library result " + rc + ")" : " (library not called)"));
            }
            return;
        }
        results++;
        Map<String, long[]> seen = shapes.computeIfAbsent(r.name, k -> new HashMap<>());
        shape(r.name, where, seed, "result", result, true, seen, new IdentityHashMap<>());
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
            if (capacity != null) {
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
