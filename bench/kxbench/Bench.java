package kxbench;

import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.IdentityHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import kxtest.FakePernix;

/**
 * Times the natives that build the largest Java trees (and one that reads the
 * largest input record) against the test double of libpernix.so, in one warm
 * JVM, next to two floors: the same tree built from the same record bytes by
 * plain Java code, and by hand-written JNI code that looks every class, field
 * and constructor up once per call (HandJni).
 *
 * Per native: warm-up calls first, then several rounds that interleave timed
 * native calls, timed calls that the library answers with 256 (the frame and
 * the test double without any conversion), timed plain-Java builds and timed
 * hand-written JNI builds; each call is timed on its own and the median over
 * all rounds is reported.  The test double is reset and re-scripted before
 * every call, outside the timing.
 *
 * Properties: bench.warmup (native calls before measuring, default 100),
 * bench.rounds (default 5), bench.only (natives to run, separated by commas; default all), bench.calls (timed native calls per round, default 40),
 * bench.floor (floor builds per round, default 400), bench.clock ("cpu", the default: the
 * calling thread's CPU time, which a busy machine disturbs far less than elapsed
 * time; "wall": elapsed time).
 */
public final class Bench {
    private static final int WARMUP = Integer.getInteger("bench.warmup", 100);
    private static final int ROUNDS = Integer.getInteger("bench.rounds", 5);
    private static final int CALLS = Integer.getInteger("bench.calls", 40);
    private static final int FLOOR = Integer.getInteger("bench.floor", 400);
    /** "cpu" (default): the calling thread's CPU time; "wall": elapsed time. */
    private static final boolean CPU = !"wall".equals(System.getProperty("bench.clock", "cpu"));
    private static final ThreadMXBean THREADS = ManagementFactory.getThreadMXBean();

    /** Keeps results reachable so that no build is optimised away. */
    static volatile Object sink;
    /** Java heap allocated by the last timed native call. */
    private static long lastHeap;

    private Bench() {}

    public static void main(String[] args) throws Exception {
        List<Case> cases = new ArrayList<>();
        cases.add(new Cases.LogicalUnits());
        cases.add(new Cases.AreaInformation());
        cases.add(new Cases.GroupInformation());
        cases.add(new SpinDownUpCase());
        cases.add(new CreateRaidGroupCase());
        // pools, wizard and LU cache
        cases.add(new PoolCases.UnifiedLus());
        cases.add(new PoolCases.ConfigurationImport());

        // host access
        cases.add(new LuMappingCase());
        cases.addAll(HostPortCases.all());

        // statistics and performance
        cases.add(new PerfCases.Statistics());
        cases.add(new PerfCases.Snapshots());
        cases.add(new PerfCases.Graphs());

        // firmware, copy pairs and migration
        cases.add(new ReplicationCases.PairInformation());
        cases.add(new ReplicationCases.MigrationInformation());
        cases.add(new ReplicationCases.StartMigration());


        String only = System.getProperty("bench.only");
        if (only != null) cases.removeIf(c -> !Arrays.asList(only.split(",")).contains(c.name()));

        System.out.printf("Bridge natives against the test double of libpernix.so, one warm JVM (%s %s)%n",
            System.getProperty("java.vm.name"), System.getProperty("java.version"));
        if (CPU && !THREADS.isCurrentThreadCpuTimeSupported()) throw new AssertionError("no thread CPU time here");
        System.out.printf("Clock: %s.%n", CPU ? "CPU time of the calling thread (-Dbench.clock=wall for elapsed time)"
            : "elapsed time");
        System.out.printf("%d warm-up calls, then %d rounds of %d timed calls, %d calls answered 256,"
            + " %d plain-Java builds and %d hand-written JNI builds of each kind; medians per call.%n",
            WARMUP, ROUNDS, CALLS, CALLS, FLOOR, CALLS);
        System.out.println("Note: this is the test build. Every record goes through the test double's allocation"
            + " seam (poison fill, 32 guard bytes each side, bookkeeping under a lock), and the double copies"
            + " every record it is handed and then writes the scripted output; \"frame+fake\" is that share.");
        System.out.println();
        System.out.printf(Locale.ROOT, "%-32s %7s %11s %17s %10s %10s %10s %10s %7s %6s %7s %9s %9s%n", "native",
            "objects", "median/call", "p10-p90", "frame+fake", "Java floor", "JNI floor", "JNI lax", "/Java", "/JNI",
            "paired", "records", "Java heap");

        for (Case c : cases) {
            Result r = measure(c);
            System.out.printf(Locale.ROOT, "%-32s %7d %11s %17s %10s %10s %10s %10s %6.0fx %6s %7s %9s %9s%n", c.name(),
                r.objects, ms(r.nativeNs), String.format(Locale.ROOT, "%.3f-%.3f", r.p10Ns / 1e6, r.p90Ns / 1e6),
                c.builds() ? ms(r.quietNs) : "-", ms(r.floorNs), ms(r.jniNs), ms(r.laxNs),
                r.nativeNs / r.floorNs, ratio(r.nativeNs / r.jniNs), ratio(r.pairedRatio), mb(r.recordPeak),
                mb(r.javaBytes));
        }
        System.out.println();
        System.out.println("Times in ms.  objects: Java objects in the tree (records and arrays), the same for the floors.");
        System.out.println("frame+fake: the same call answered 256 (records allocated, library called, nothing built);"
            + " not for a reader, which converts before the call.");
        System.out.println("p10-p90: spread of the timed native calls.");
        System.out.println("Java floor: the same tree (or record bytes) made by plain Java code.");
        System.out.println("JNI floor: made by hand-written JNI code, every class, constructor and field looked up"
            + " once per call, local references deleted in the loops, stdout flushed before each record as"
            + " the natives must; a reader looks each element's fields up by the element's own class.");
        System.out.println("JNI lax: the same without the flushes (builders) or the per-element class test (reader).");
        System.out.println("/Java, /JNI: median/call over the Java floor and over the JNI floor.");
        System.out.println("paired: median over the rounds' calls of (native call / the JNI floor build timed right"
            + " after it); steadier than /JNI when the machine's load changes during the run.");
        System.out.println("JNI columns \"-\": no hand-written JNI floor for that native.");
        System.out.println("records: most bytes of the native's records live at once during one call (MB).");
        System.out.println("Java heap: bytes the calling thread allocated during one call, the tree and any"
            + " garbage (MB; median of the measured calls).");
    }

    private static final class Result {
        int objects;
        double nativeNs;
        double p10Ns;
        double p90Ns;
        double quietNs;
        double floorNs;
        double jniNs;
        double laxNs;
        double pairedRatio;
        long recordPeak;
        long javaBytes;
    }

    private static Result measure(Case c) {
        Result r = new Result();
        c.script(false);
        Object got = c.result(c.callNative());
        c.sample(got);
        boolean jniFloor = c.buildJni(false) != null;
        for (Object floor : jniFloor ? new Object[] {c.buildFloor(), c.buildJni(false), c.buildJni(true)}
                : new Object[] {c.buildFloor()}) {
            String diff = difference(got, floor, c.name());
            if (diff != null) throw new AssertionError("a floor does not build the native's tree: " + diff);
        }
        r.objects = count(c.builds() ? got : c.input(), new IdentityHashMap<>());

        for (int i = 0; i < WARMUP; i++) {
            timeNative(c, false);
            if (c.builds()) timeNative(c, true);
            if (jniFloor) {
                sink = c.buildJni(false);
                sink = c.buildJni(true);
            }
        }
        for (int i = 0; i < 10 * FLOOR; i++) sink = c.buildFloor();

        long[] nat = new long[ROUNDS * CALLS];
        long[] quiet = new long[ROUNDS * CALLS];
        long[] flo = new long[ROUNDS * FLOOR];
        long[] jni = new long[ROUNDS * CALLS];
        long[] lax = new long[ROUNDS * CALLS];
        long[] heap = new long[ROUNDS * CALLS];
        long[] peak = new long[ROUNDS * CALLS];
        for (int round = 0; round < ROUNDS; round++) {
            // Interleaved, so that a burst of load on the machine hits all of them alike.
            for (int i = 0; i < CALLS; i++) {
                int k = round * CALLS + i;
                nat[k] = timeNative(c, false);
                heap[k] = lastHeap;
                peak[k] = FakePernix.peakBytes();
                if (c.builds()) quiet[k] = timeNative(c, true);
                if (jniFloor) {
                    jni[k] = timeJni(c, false);
                    lax[k] = timeJni(c, true);
                }
            }
            for (int i = 0; i < FLOOR; i++) {
                long t0 = now();
                Object o = c.buildFloor();
                long t1 = now();
                sink = o;
                flo[round * FLOOR + i] = t1 - t0;
            }
        }
        r.nativeNs = median(nat);
        r.p10Ns = percentile(nat, 10);
        r.p90Ns = percentile(nat, 90);
        r.quietNs = median(quiet);
        r.floorNs = median(flo);
        r.jniNs = jniFloor ? median(jni) : Double.NaN;
        r.laxNs = jniFloor ? median(lax) : Double.NaN;
        r.javaBytes = (long) median(heap);
        r.recordPeak = Arrays.stream(peak).max().getAsLong();
        if (jniFloor) {
            double[] ratios = new double[nat.length];
            for (int i = 0; i < nat.length; i++) ratios[i] = (double) nat[i] / jni[i];
            Arrays.sort(ratios);
            r.pairedRatio = ratios[ratios.length / 2];
        } else {
            r.pairedRatio = Double.NaN;
        }
        c.script(false);
        sink = null;
        return r;
    }

    private static long timeNative(Case c, boolean quiet) {
        c.script(quiet);
        long h0 = allocatedBytes();
        long t0 = now();
        Object o = c.callNative();
        long t1 = now();
        lastHeap = allocatedBytes() - h0;
        if ((o == null) != quiet) throw new AssertionError(c.name() + " returned " + o);
        sink = o;
        return t1 - t0;
    }

    private static long timeJni(Case c, boolean lax) {
        long t0 = now();
        Object o = c.buildJni(lax);
        long t1 = now();
        if (o == null) throw new AssertionError(c.name() + ": the hand-written JNI build failed");
        sink = o;
        return t1 - t0;
    }

    /** The clock every call is timed with. */
    private static long now() {
        return CPU ? THREADS.getCurrentThreadCpuTime() : System.nanoTime();
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
        return Double.isNaN(ns) ? "-" : String.format(Locale.ROOT, "%.3f", ns / 1e6);
    }

    private static String ratio(double x) {
        return Double.isNaN(x) ? "-" : String.format(Locale.ROOT, "%.2fx", x);
    }

    private static String mb(long bytes) {
        return String.format(Locale.ROOT, "%.2f", bytes / 1048576.0);
    }

    /** Java heap the calling thread has allocated so far. */
    private static long allocatedBytes() {
        return ((com.sun.management.ThreadMXBean) THREADS).getCurrentThreadAllocatedBytes();
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
        if (a instanceof Number || a instanceof String) {
            return a.equals(b) ? null : path + ": " + a + " against " + b;
        }
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
