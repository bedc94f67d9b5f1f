package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;
import static org.junit.Assert.fail;

import java.io.IOException;
import java.lang.reflect.Field;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Modifier;
import java.nio.file.Files;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Collections;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.Random;
import java.util.TreeSet;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.BrokenBarrierException;
import java.util.concurrent.CyclicBarrier;
import java.util.concurrent.TimeUnit;
import java.util.concurrent.atomic.AtomicBoolean;
import java.util.concurrent.atomic.AtomicLong;
import orvane.str.diskarray.DiskArrayUtilityJNI;
import org.junit.Test;

/**
 * Load: every native of the frame table, from several threads at once, for a
 * bounded time (KX_SOAK_SECONDS, default 60; KX_SOAK_THREADS threads, default
 * 4), in rounds.  In a round each thread calls each of its natives once, in an
 * order of its own; most natives are called by every thread and answer the
 * same scripted records, so every call must build the same result as a lone
 * call did; the rest belong to one thread that round, and half of those fail
 * with a code only that thread expects.  Between rounds, with no call in
 * flight, the seam must hold no live block and have seen no release fault;
 * the resident size (after malloc gives back what it keeps free), the malloc
 * heap and the JVM's JNI global references are sampled there, and the JNI
 * local references of every thread during each round.  After a warm-up that
 * is not sampled, none of the first three may grow from the first tenth of the
 * rounds to the last, and the locals in flight stay within what the calls in
 * flight can hold.  A round calls a quarter of the natives.  Not a JUnit suite
 * of the legs (its name does not end in Test): the soak leg and
 * scripts/soak.sh run it.
 */
public class Soak {
    static final int SECONDS = setting("KX_SOAK_SECONDS", 60);
    static final int THREADS = setting("KX_SOAK_THREADS", 4);
    /** Natives whose library arguments hold more bytes go to one thread a round. */
    static final long SHARED_MAX_BYTES = 256 << 10;
    /**
     * Growth allowed from the first tenth to the last: resident size, malloc
     * heap.  The double keeps up to 64 MB of released blocks and 16 copy
     * buffers for reuse (full by the end of the warm-up; the run prints how
     * much); the bridge's own records are counted exactly, as the seam's live
     * blocks.
     */
    static final long RSS_SLACK = 24L << 20, MALLOC_SLACK = 12L << 20;
    /**
     * JNI local references one call holds at most: the lookups of a call keep
     * up to 192 class and field references with 32 to spare for the walker,
     * plus the call's own arguments.
     */
    static final long LOCALS_PER_CALL = 256;

    static int setting(String name, int fallback) {
        String v = System.getenv(name);
        return v == null || v.isEmpty() ? fallback : Integer.parseInt(v.trim());
    }

    /** A native of the table, what the double answers it, and what a lone call built from that. */
    static final class Native {
        FrameTableTest.Row row;
        int index;
        String family;
        byte[][] script;  // bytes served into each library argument (null: none)
        long recordBytes;
        long reference;   // outcome of a lone call with the script
    }

    /** What a native is in one round: shared, or owned by one thread and then maybe failing. */
    static final class Role {
        int owner = -1;  // -1: every thread calls it
        int code;        // non-zero: the library answers this code
    }

    final DiskArrayUtilityJNI jni = new DiskArrayUtilityJNI();
    final List<String> mismatches = Collections.synchronizedList(new ArrayList<>());
    final AtomicLong calls = new AtomicLong();

    // ------------------------------------------------------------ outcomes

    private static final Map<Class<?>, Field[]> FIELDS = new ConcurrentHashMap<>();

    private static Field[] fields(Class<?> c) {
        return Arrays.stream(c.getFields()).filter(f -> !Modifier.isStatic(f.getModifiers()))
            .sorted((a, b) -> a.getName().compareTo(b.getName())).toArray(Field[]::new);
    }

    /** A digest of a whole result tree: classes, values, strings, array lengths, nulls. */
    static long digest(Object o, long h) throws IllegalAccessException {
        h = h * 1_000_003L;
        if (o == null) return h ^ 0x6e756c6cL;
        Class<?> c = o.getClass();
        h ^= c.getName().hashCode();
        if (o instanceof String || o instanceof Number || o instanceof Boolean || o instanceof Character) {
            return h * 31 + o.hashCode();
        }
        if (o instanceof int[]) return h * 31 + Arrays.hashCode((int[]) o);
        if (o instanceof byte[]) return h * 31 + Arrays.hashCode((byte[]) o);
        if (o instanceof short[]) return h * 31 + Arrays.hashCode((short[]) o);
        if (o instanceof long[]) return h * 31 + Arrays.hashCode((long[]) o);
        if (o instanceof char[]) return h * 31 + Arrays.hashCode((char[]) o);
        if (o instanceof Object[]) {
            Object[] a = (Object[]) o;
            h = h * 31 + a.length;
            for (Object e : a) h = digest(e, h);
            return h;
        }
        if (c.isArray()) fail("no digest for " + c);
        for (Field f : FIELDS.computeIfAbsent(c, Soak::fields)) h = digest(f.get(o), h * 31 + f.getName().hashCode());
        return h;
    }

    /** The outcome of one call of n with fresh plain arguments: a digest of what it returned or threw. */
    long outcome(Native n) throws ReflectiveOperationException {
        Object[] args = FrameTableTest.plainArgs(n.row.method);
        try {
            return digest(n.row.method.invoke(jni, args), 1);
        } catch (InvocationTargetException e) {
            Throwable t = e.getCause();
            Integer code = FrameTableTest.codeOf(t);
            return digest(t.getClass().getName() + "/" + (code != null ? code : t.getMessage()), 2);
        }
    }

    /** Small values in every 4-byte word: counts stay low, texts short, every result differs from zero. */
    static byte[] scripted(String fn, int arg, int size) {
        Random r = new Random(fn.hashCode() * 31L + arg);
        byte[] b = new byte[size];
        for (int i = 0; i < size; i += 4) b[i] = (byte) r.nextInt(8);
        return b;
    }

    static void script(Native n, Role role) {
        for (int k = 0; k < n.script.length; k++) {
            if (n.script[k] != null) FakePernix.willWrite(n.row.name, k, n.script[k]);
        }
        if (role.code != 0) FakePernix.willReturn(n.row.name, role.code);
    }

    /** Learns each native's library arguments from a lone call, scripts them and takes the reference outcome. */
    List<Native> prepare() throws Exception {
        List<Native> out = new ArrayList<>();
        for (FrameTableTest.Row row : FrameTableTest.table()) {
            Native n = new Native();
            n.row = row;
            n.index = out.size();
            n.family = row.where.substring(0, row.where.indexOf(".tsv"));
            FakePernix.reset();
            outcome(n);
            int args = FakePernix.calls(row.name) == 1 ? FakePernix.releaseStates(row.name, 0).length : 0;
            n.script = new byte[args][];
            for (int k = 0; k < args; k++) {
                byte[] handed = FakePernix.arg(row.name, 0, k);
                if (handed == null || handed.length == 0) continue;
                n.script[k] = scripted(row.name, k, handed.length);
                n.recordBytes += handed.length;
            }
            FakePernix.reset();
            script(n, new Role());
            n.reference = outcome(n);
            FakePernix.reset();
            script(n, new Role());
            assertEquals(row.name + ": two lone calls with the same answer differ", n.reference, outcome(n));
            FakePernix.reset();
            assertEquals(row.name + ": release faults", "", FakePernix.takeFaults());
            out.add(n);
        }
        return out;
    }

    /** Rounds call a slice of the natives each, so that a short run still has many rounds to compare. */
    static final int SLICES = 4;

    /** Round r: large natives and a rotating quarter of the rest go to one thread; half of those fail. */
    static Role[] roles(List<Native> natives, int r) {
        Role[] roles = new Role[natives.size()];
        for (Native n : natives) {
            if (n.index % SLICES != r % SLICES) continue;  // not called this round
            Role role = new Role();
            int i = n.index;
            if (n.recordBytes > SHARED_MAX_BYTES || (i + r) % 4 == 0) {
                role.owner = Math.floorMod(i * 7 + r, THREADS);
                if (!n.row.special && (i + r) % 2 == 0) role.code = 40000 + 300 * role.owner + i;
            }
            roles[i] = role;
        }
        return roles;
    }

    // ------------------------------------------------------------ samples

    static final class Sample {
        double at;      // seconds since the start
        long rss;       // resident bytes, between rounds
        long malloc;    // malloc heap in use, between rounds
        long globals;   // JNI global references, between rounds
        long locals;    // JNI local references of every thread, mid-round
        long kept;      // bytes the double keeps for reuse, between rounds
    }

    static long residentBytes() throws IOException {
        for (String line : Files.readAllLines(Paths.get("/proc/self/status"))) {
            if (line.startsWith("VmRSS:")) return Long.parseLong(line.replaceAll("[^0-9]", "")) * 1024;
        }
        throw new IOException("no VmRSS in /proc/self/status");
    }


    static String mb(long b) {
        return String.format(Locale.ROOT, "%.1f MB", b / 1048576.0);
    }

    // ------------------------------------------------------------ the run

    void work(int t, List<Native> natives, Role[][] current, CyclicBarrier start, CyclicBarrier end,
              AtomicBoolean stop) {
        try {
            for (int round = 0; ; round++) {
                start.await();
                if (stop.get()) return;
                Role[] roles = current[0];
                List<Native> mine = new ArrayList<>();
                for (Native n : natives) {
                    Role role = roles[n.index];
                    if (role != null && (role.owner < 0 || role.owner == t)) mine.add(n);
                }
                Collections.shuffle(mine, new Random(round * 131L + t));
                for (Native n : mine) {
                    Role role = roles[n.index];
                    String got;
                    String want;
                    if (role.code != 0) {
                        Object[] args = FrameTableTest.plainArgs(n.row.method);
                        Integer code = null;
                        try {
                            n.row.method.invoke(jni, args);
                        } catch (InvocationTargetException e) {
                            code = FrameTableTest.codeOf(e.getCause());
                        }
                        got = "code " + code;
                        want = "code " + role.code;
                    } else {
                        got = Long.toHexString(outcome(n));
                        want = Long.toHexString(n.reference);
                    }
                    calls.incrementAndGet();
                    if (!got.equals(want) && mismatches.size() < 20) {
                        mismatches.add("thread " + t + ", round " + round + ", " + n.row.name + ": expected " + want
                                       + ", got " + got);
                    }
                }
                end.await();
            }
        } catch (BrokenBarrierException e) {
            if (!stop.get()) mismatches.add("thread " + t + ": the run broke off");
        } catch (Throwable e) {
            mismatches.add("thread " + t + " stopped: " + e);
            stop.set(true);
            start.reset();
            end.reset();
        }
    }

    @Test
    public void nativesOfEveryFamilyFromSeveralThreadsLeakNothingAndAnswerEachThreadAsAlone() throws Exception {
        List<Native> natives = prepare();
        TreeSet<String> families = new TreeSet<>();
        for (Native n : natives) families.add(n.family);
        CyclicBarrier start = new CyclicBarrier(THREADS + 1);
        CyclicBarrier end = new CyclicBarrier(THREADS + 1);
        Role[][] current = new Role[1][];
        AtomicBoolean stop = new AtomicBoolean();
        List<Thread> threads = new ArrayList<>();
        for (int t = 0; t < THREADS; t++) {
            final int id = t;
            Thread th = new Thread(() -> work(id, natives, current, start, end, stop), "soak-" + t);
            th.start();
            threads.add(th);
        }
        List<Sample> samples = new ArrayList<>();
        // A warm-up of a fifth of the run (at least 5 s) is not sampled: the
        // JIT compiles, the heaps and the double's pools reach their sizes.
        long warm = Math.max(5_000_000_000L, SECONDS * 200_000_000L);
        long began = System.nanoTime() + warm;
        long deadline = began + SECONDS * 1_000_000_000L;
        long lastRound = 100_000_000L;
        int round = 0;
        long[] warmCalls = {0};
        boolean between = true;  // every thread waits at the start of a round
        try {
            for (; ; round++) {
                Sample s = new Sample();
                FakePernix.reset();
                current[0] = roles(natives, round);
                for (Native n : natives) if (current[0][n.index] != null) script(n, current[0][n.index]);
                between = false;
                long roundStart = System.nanoTime();
                start.await();
                // Locals of the threads in flight, a few times through the round.
                for (int i = 0; i < 4; i++) {
                    Thread.sleep(Math.max(1, lastRound / 5_000_000L));
                    s.locals = Math.max(s.locals, SoakProbe.jniReferences()[1]);
                }
                end.await();
                lastRound = System.nanoTime() - roundStart;
                // No call in flight: every block released, nothing released wrongly.
                assertEquals("live blocks after round " + round, 0, FakePernix.liveBlocks());
                assertEquals("release faults in round " + round, "", FakePernix.takeFaults());
                FakePernix.reset();
                s.at = (System.nanoTime() - began) / 1e9;
                if (s.at < 0) warmCalls[0] = calls.get();
                SoakProbe.trimMalloc();
                s.rss = residentBytes();
                s.malloc = SoakProbe.mallocInUse();
                s.globals = SoakProbe.jniReferences()[0];
                s.kept = FakePernix.keptBytes();
                if (s.at >= 0) samples.add(s);
                between = true;
                if (System.nanoTime() >= deadline) break;
            }
        } catch (BrokenBarrierException e) {
            // a thread stopped: its reason is among the mismatches
        } finally {
            stop.set(true);
            if (between) start.await(60, TimeUnit.SECONDS);
            for (Thread th : threads) {
                th.join(between ? 60_000 : 5_000);
                if (th.isAlive()) th.interrupt();
                th.join();
            }
        }
        double took = (System.nanoTime() - began) / 1e9;
        long measuredCalls = calls.get() - warmCalls[0];
        assertTrue("threads: " + mismatches, mismatches.isEmpty());
        assertTrue("too few rounds to compare tenths: " + samples.size(), samples.size() >= 2);

        int k = Math.max(1, samples.size() / 10);
        List<Sample> first = samples.subList(0, k), last = samples.subList(samples.size() - k, samples.size());
        // The lowest sample of each tenth: a leak raises every sample of the
        // last tenth, while the JVM's compiler holds ten to twenty MB of
        // malloc'd arenas for seconds around a large compilation, which on a
        // busy machine comes late in the run too (a 60 s run once grew 30 MB
        // resident so, the malloc heap 16 MB, and shrank again).
        long rss0 = Collections.min(pick(first, s -> s.rss)), rss1 = Collections.min(pick(last, s -> s.rss));
        long mal0 = Collections.min(pick(first, s -> s.malloc)), mal1 = Collections.min(pick(last, s -> s.malloc));
        long glo0 = Collections.max(pick(first, s -> s.globals)), glo1 = Collections.max(pick(last, s -> s.globals));
        long loc0 = Collections.max(pick(first, s -> s.locals)), loc1 = Collections.max(pick(last, s -> s.locals));
        long locAll = Collections.max(pick(samples, s -> s.locals));
        long kept0 = first.get(0).kept, kept1 = last.get(last.size() - 1).kept;
        System.out.printf(Locale.ROOT,
            "soak: %d threads, %.1f s, %d rounds, %d calls of %d natives in %d families (%s), %.0f calls/s%n",
            THREADS, took, samples.size(), measuredCalls, natives.size(), families.size(), String.join(" ", families),
            measuredCalls / took);
        System.out.printf(Locale.ROOT,
            "soak: first/last tenth (%d of %d rounds each, lowest): resident %s / %s, malloc heap %s / %s,"
            + " JNI globals %d / %d, JNI locals in flight (max) %d / %d (whole run %d); kept by the double for"
            + " reuse %s / %s; live seam blocks between rounds 0%n", k, samples.size(), mb(rss0), mb(rss1), mb(mal0),
            mb(mal1), glo0, glo1, loc0, loc1, locAll, mb(kept0), mb(kept1));
        assertTrue("resident size grew " + mb(rss1 - rss0), rss1 - rss0 <= RSS_SLACK);
        assertTrue("malloc heap grew " + mb(mal1 - mal0), mal1 - mal0 <= MALLOC_SLACK);
        assertTrue("JNI global references grew from " + glo0 + " to " + glo1, glo1 <= glo0);
        // Locals live only while a native runs and die with its frame, so
        // none outlive a call to pile up over the run (one that piles them up
        // inside a call is -Xcheck:jni's to report).  What is in flight
        // depends on which natives the threads are in when sampled, and grows
        // as the JIT shortens the Java side of a round (a first tenth of 86
        // and a last of 483 in one run): bounded per thread, not compared.
        assertTrue("JNI local references in flight: " + locAll + ", more than " + THREADS + " calls hold",
                   locAll <= LOCALS_PER_CALL * THREADS);
    }

    interface Of {
        long of(Sample s);
    }

    static List<Long> pick(List<Sample> samples, Of f) {
        List<Long> out = new ArrayList<>();
        for (Sample s : samples) out.add(f.of(s));
        return out;
    }
}
