package kxbench;

import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.IdentityHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;

/**
 * Times the natives that build the largest Java trees against the test double
 * of libpernix.so, in one warm JVM, next to the floor: the same tree built
 * from the same record bytes by plain Java code.
 *
 * Per native: warm-up calls first, then several rounds that interleave timed
 * native calls, timed calls that the library answers with 256 (the frame and
 * the test double without any conversion) and timed floor builds; each call is
 * timed on its own and the median over all rounds is reported.  The test
 * double is reset and re-scripted before every call, outside the timing.
 *
 * Properties: bench.warmup (native calls before measuring, default 100),
 * bench.rounds (default 5), bench.calls (timed native calls per round, default 40),
 * bench.floor (floor builds per round, default 400).
 */
public final class Bench {
    private static final int WARMUP = Integer.getInteger("bench.warmup", 100);
    private static final int ROUNDS = Integer.getInteger("bench.rounds", 5);
    private static final int CALLS = Integer.getInteger("bench.calls", 40);
    private static final int FLOOR = Integer.getInteger("bench.floor", 400);

    /** Keeps results reachable so that no build is optimised away. */
    static volatile Object sink;

    private Bench() {}

    public static void main(String[] args) throws Exception {
        List<Case> cases = new ArrayList<>();
        cases.add(new Cases.LogicalUnits());
        cases.add(new Cases.AreaInformation());
        cases.add(new Cases.GroupInformation());
        cases.add(new SpinDownUpCase());
        // pools, wizard and LU cache

        // host access

        // statistics and performance

        // firmware, copy pairs and migration


        System.out.printf("Bridge natives against the test double of libpernix.so, one warm JVM (%s %s)%n",
            System.getProperty("java.vm.name"), System.getProperty("java.version"));
        System.out.printf("%d warm-up calls, then %d rounds of %d timed calls, %d calls answered 256"
            + " and %d floor builds; medians per call.%n", WARMUP, ROUNDS, CALLS, CALLS, FLOOR);
        System.out.println("Note: this is the test build. Every record goes through the test double's allocation"
            + " seam (poison fill, 32 guard bytes each side, bookkeeping under a lock), and the double copies"
            + " every record it is handed and then writes the scripted output; \"frame+fake\" is that share.");
        System.out.println();
        System.out.printf(Locale.ROOT, "%-30s %8s %12s %19s %12s %12s %12s %8s%n", "native", "objects",
            "median/call", "p10-p90", "frame+fake", "conversion", "floor", "ratio");

        for (Case c : cases) {
            Result r = measure(c);
            System.out.printf(Locale.ROOT, "%-30s %8d %12s %19s %12s %12s %12s %7.0fx%n", c.name(), r.objects,
                ms(r.nativeNs), String.format(Locale.ROOT, "%.2f-%.2f ms", r.p10Ns / 1e6, r.p90Ns / 1e6),
                ms(r.quietNs), ms(r.nativeNs - r.quietNs), ms(r.floorNs),
                r.nativeNs / r.floorNs);
        }
        System.out.println();
        System.out.println("objects: Java objects in the returned tree (records and arrays), the same for the floor.");
        System.out.println("frame+fake: the same call answered 256 (records allocated, library called, nothing built).");
        System.out.println("p10-p90: spread of the timed native calls.");
        System.out.println("conversion: median/call minus frame+fake.  ratio: median/call over the floor.");
    }

    private static final class Result {
        int objects;
        double nativeNs;
        double p10Ns;
        double p90Ns;
        double quietNs;
        double floorNs;
    }

    private static Result measure(Case c) {
        Result r = new Result();
        c.script(false);
        Object got = c.callNative();
        Object floor = c.buildFloor();
        String diff = difference(got, floor, c.name());
        if (diff != null) throw new AssertionError("the floor does not build the native's tree: " + diff);
        r.objects = count(got, new IdentityHashMap<>());

        for (int i = 0; i < WARMUP; i++) {
            timeNative(c, false);
            timeNative(c, true);
        }
        for (int i = 0; i < 10 * FLOOR; i++) sink = c.buildFloor();

        long[] nat = new long[ROUNDS * CALLS];
        long[] quiet = new long[ROUNDS * CALLS];
        long[] flo = new long[ROUNDS * FLOOR];
        for (int round = 0; round < ROUNDS; round++) {
            for (int i = 0; i < CALLS; i++) nat[round * CALLS + i] = timeNative(c, false);
            for (int i = 0; i < CALLS; i++) quiet[round * CALLS + i] = timeNative(c, true);
            for (int i = 0; i < FLOOR; i++) {
                long t0 = System.nanoTime();
                Object o = c.buildFloor();
                long t1 = System.nanoTime();
                sink = o;
                flo[round * FLOOR + i] = t1 - t0;
            }
        }
        r.nativeNs = median(nat);
        r.p10Ns = percentile(nat, 10);
        r.p90Ns = percentile(nat, 90);
        r.quietNs = median(quiet);
        r.floorNs = median(flo);
        c.script(false);
        sink = null;
        return r;
    }

    private static long timeNative(Case c, boolean quiet) {
        c.script(quiet);
        long t0 = System.nanoTime();
        Object o = c.callNative();
        long t1 = System.nanoTime();
        if ((o == null) != quiet) throw new AssertionError(c.name() + " returned " + o);
        sink = o;
        return t1 - t0;
    }

    private static double median(long[] v) {
        long[] s = v.clone();
        Arrays.sort(s);
        int n = s.length;
        return n % 2 == 1 ? s[n / 2] : (s[n / 2 - 1] + s[n / 2]) / 2.0;
    }

    private static double percentile(long[] v, int p) {
        long[] s = v.clone();
        Arrays.sort(s);
        return s[Math.min(s.length - 1, s.length * p / 100)];
    }

    private static String ms(double ns) {
        return String.format(Locale.ROOT, "%.3f ms", ns / 1e6);
    }

    private static List<Field> fields(Class<?> cls) {
        List<Field> out = new ArrayList<>();
        for (Field f : cls.getFields()) if (!Modifier.isStatic(f.getModifiers())) out.add(f);
        return out;
    }

    /** Objects reachable from o: record objects and arrays of them. */
    private static int count(Object o, Map<Object, Boolean> seen) {
        if (o == null || seen.put(o, Boolean.TRUE) != null) return 0;
        int n = 1;
        Class<?> cls = o.getClass();
        if (cls.isArray()) {
            if (!cls.getComponentType().isPrimitive()) {
                for (int i = 0; i < Array.getLength(o); i++) n += count(Array.get(o, i), seen);
            }
            return n;
        }
        try {
            for (Field f : fields(cls)) if (!f.getType().isPrimitive()) n += count(f.get(o), seen);
        } catch (IllegalAccessException e) {
            throw new AssertionError(e);
        }
        return n;
    }

    /** Where trees a and b differ, or null when they hold the same values. */
    private static String difference(Object a, Object b, String path) {
        if (a == null || b == null) return a == b ? null : path + ": null against non-null";
        Class<?> cls = a.getClass();
        if (cls != b.getClass()) return path + ": " + cls + " against " + b.getClass();
        if (cls.isArray()) {
            if (Array.getLength(a) != Array.getLength(b)) return path + ": lengths differ";
            for (int i = 0; i < Array.getLength(a); i++) {
                String d = difference(Array.get(a, i), Array.get(b, i), path + "[" + i + "]");
                if (d != null) return d;
            }
            return null;
        }
        if (cls == Integer.class) return a.equals(b) ? null : path + ": " + a + " against " + b;
        try {
            for (Field f : fields(cls)) {
                String d = difference(f.get(a), f.get(b), path + "." + f.getName());
                if (d != null) return d;
            }
        } catch (IllegalAccessException e) {
            throw new AssertionError(e);
        }
        return null;
    }
}
