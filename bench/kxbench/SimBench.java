package kxbench;

import java.io.BufferedReader;
import java.io.ByteArrayOutputStream;
import java.io.File;
import java.io.IOException;
import java.io.InputStreamReader;
import java.io.PrintStream;
import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.lang.reflect.Constructor;
import java.lang.reflect.Method;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.time.ZoneOffset;
import java.time.ZonedDateTime;
import java.time.format.DateTimeFormatter;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Comparator;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.concurrent.TimeUnit;
import java.util.regex.Matcher;
import java.util.regex.Pattern;
import java.util.function.Supplier;
import kxtest.FakePernix;
import orvane.str.diskarray.DiskArrayException;
import orvane.str.diskarray.DiskArrayUtilityJNI;
import orvane.str.diskarray.KXAccountLogin;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.LogicalUnit;
import orvane.str.diskarray.PrefetchInformation;

/**
 * Times calls from Java through the bridge into the simulated array, next to
 * the same calls answered by the test double, so that the simulator's own
 * share shows.
 *
 * One JVM binds the natives to one libpernix.so, so the driver (this class's
 * main) runs the calls in child JVMs and prints one table:
 * <ul>
 * <li>"double": the test build's bridge and the test double, which serves a
 * scripted record (re-scripted before every call, outside the timing);</li>
 * <li>"sim": the bridge without the test seam (build/plain) over the simulator,
 * on a fresh database holding the default array;</li>
 * <li>"full": the same over a database seeded with all 4096 LUs.</li>
 * </ul>
 * The driver asks the children for their rounds in turn (double, sim, full,
 * double, ...), so a change of the machine's load falls on all three alike.
 * Then the sample session (examples/SampleSession.java) runs in the sim child,
 * each time on the default array again (pernix-sim reset, outside the timing),
 * and in fresh JVMs on a new database file as the README's run command does
 * (the session's own figure, which leaves out the JVM's start).  Last, a child
 * commits a stream of prefetch settings and is killed with SIGKILL; a new JVM
 * checks that the database holds the last acknowledged one.
 *
 * Every call is timed on its own, on the calling thread's CPU time and on
 * elapsed time.  Properties: simbench.rounds (default 10), simbench.calls (per
 * round and call, default 100; 20 for the LU list of the full model),
 * simbench.warmup (default 200), simbench.sessions (warm sample sessions,
 * default 20), simbench.cold (sample sessions in fresh JVMs, default 3).
 */
public final class SimBench {
    private static final int ROUNDS = Integer.getInteger("simbench.rounds", 10);
    private static final int CALLS = Integer.getInteger("simbench.calls", 100);
    private static final int WARMUP = Integer.getInteger("simbench.warmup", 200);
    private static final int SESSIONS = Integer.getInteger("simbench.sessions", 20);
    private static final int COLD = Integer.getInteger("simbench.cold", 3);
    private static final ThreadMXBean THREADS = ManagementFactory.getThreadMXBean();

    private static final String[] CALL_NAMES = {"KX_GetUnitParam", "KX_GetLogicalUnit1", "KX_GetRaidGroupInformation",
        "KX_SetPrefetchInformation", "KX_GetLogicalUnit"};
    /** Host access and performance: small records, then the largest trees (timed fewer times, like the LU list). */
    private static final String[] FAMILY_SMALL = {"KX_GetHGOption", "KX_GetLuGuardInformation"};
    private static final String[] FAMILY_LARGE = {"KX_GetLuMappingListAll", "KX_GetStatisticalInformation",
        "KX_GetPerformanceAll"};

    static volatile Object sink;

    private SimBench() {}

    public static void main(String[] args) throws Exception {
        String role = System.getProperty("simbench.role", "driver");
        switch (role) {
            case "driver": new Driver().run(); break;
            case "double": serve(doubleCalls(), false); break;
            case "sim": serve(simCalls(login()), true); break;
            case "stream": stream(login()); break;
            case "verify": verify(login()); break;
            default: throw new IllegalArgumentException("simbench.role " + role);
        }
    }

    // ---- children

    /** Loads the bridge when a child first calls it (the driver never does). */
    private static final class Lib {
        static final DiskArrayUtilityJNI JNI = new DiskArrayUtilityJNI();
    }

    private static final String UNIT = env("PERNIX_SIM_UNIT", "SIM01");

    private static String env(String name, String fallback) {
        String v = System.getenv(name);
        return v == null || v.isEmpty() ? fallback : v;
    }

    private static KXSessionInfo login() throws DiskArrayException {
        KXAccountLogin l = new KXAccountLogin();
        l.user_id = env("PERNIX_SIM_ADMIN_USER", "admin");
        l.passwd = env("PERNIX_SIM_ADMIN_PASSWORD", "pernix-sim");
        l.log_option = 0;
        l.log_string = "SimBench";
        return Lib.JNI.KX_LoginKXAccount(UNIT, l);
    }

    /** A timed call: prepare runs outside the timing, call inside. */
    private record Timed(Runnable prepare, Supplier<Object> call) {}

    /** Calls that throw DiskArrayException (undeclared by the natives) fail the run. */
    private static Supplier<Object> checked(Callable c) {
        return () -> {
            try {
                return c.call();
            } catch (Exception e) {
                throw new IllegalStateException(e);
            }
        };
    }

    private interface Callable {
        Object call() throws Exception;
    }

    private static Map<String, Timed> simCalls(KXSessionInfo s) throws Exception {
        Map<String, Timed> m = new LinkedHashMap<>();
        PrefetchInformation p = Lib.JNI.KX_GetPrefetchInformation(UNIT, s);
        int[] next = {0};
        m.put("KX_GetUnitParam", new Timed(null, checked(() -> Lib.JNI.KX_GetUnitParam(UNIT))));
        m.put("KX_GetLogicalUnit1", new Timed(null, checked(() -> Lib.JNI.KX_GetLogicalUnit1(UNIT, s, 0))));
        m.put("KX_GetRaidGroupInformation", new Timed(null, checked(() -> Lib.JNI.KX_GetRaidGroupInformation(UNIT, s))));
        // Each call commits a different value.
        m.put("KX_SetPrefetchInformation", new Timed(() -> p.stg_next = next[0]++ % 16385,
            checked(() -> {
                Lib.JNI.KX_SetPrefetchInformation(UNIT, s, p);
                return p;
            })));
        m.put("KX_GetLogicalUnit", new Timed(null, checked(() -> {
            LogicalUnit[] l = Lib.JNI.KX_GetLogicalUnit(UNIT, s);
            if (l.length != 4096) throw new AssertionError("LU list of " + l.length);
            return l;
        })));
        m.put("KX_GetHGOption", new Timed(null, checked(() -> Lib.JNI.KX_GetHGOption(UNIT, s, 0, 0, 0))));
        m.put("KX_GetLuGuardInformation", new Timed(null, checked(() -> Lib.JNI.KX_GetLuGuardInformation(UNIT, s))));
        m.put("KX_GetLuMappingListAll", new Timed(null, checked(() -> Lib.JNI.KX_GetLuMappingListAll(UNIT, s))));
        m.put("KX_GetStatisticalInformation", new Timed(null,
            checked(() -> Lib.JNI.KX_GetStatisticalInformation(UNIT, s, 0))));
        m.put("KX_GetPerformanceAll", new Timed(null, checked(() -> Lib.JNI.KX_GetPerformanceAll(UNIT, s, 0))));
        return m;
    }

    private static Map<String, Timed> doubleCalls() {
        Map<String, Timed> m = new LinkedHashMap<>();
        KXSessionInfo s = Case.SESSION;
        byte[] unit = new byte[256];
        ByteBuffer u = ByteBuffer.wrap(unit).order(ByteOrder.LITTLE_ENDIAN);
        text(u, 0, "SIM01");
        text(u, 65, "default");
        u.put(82, (byte) 1).put(83, (byte) 1).put(84, (byte) 2).put(85, (byte) 1);
        text(u, 87, "192.0.2.10");
        text(u, 167, "192.0.2.11");
        text(u, 247, "93000001");
        m.put("KX_GetUnitParam", new Timed(() -> script("KX_GetUnitParam", 1, unit),
            checked(() -> Lib.JNI.KX_GetUnitParam(UNIT))));
        byte[] lu = new byte[88];
        ByteBuffer l = ByteBuffer.wrap(lu).order(ByteOrder.LITTLE_ENDIAN);
        int[] v = {0, 0, 5, 0, 209715200, -1, 0, 0, 0, 0, 256, 0, 0, 0, 0, 512, 1, 0, 0, 0, 0x5A, 3};
        for (int f = 0; f < v.length; f++) l.putInt(4 * f, v[f]);
        m.put("KX_GetLogicalUnit1", new Timed(() -> script("KX_GetLogicalUnit1", 3, lu),
            checked(() -> Lib.JNI.KX_GetLogicalUnit1(UNIT, s, 0))));
        Case groups = new Cases.GroupInformation();
        m.put("KX_GetRaidGroupInformation", new Timed(() -> groups.script(false), checked(groups::callNative)));
        PrefetchInformation p = new PrefetchInformation();
        m.put("KX_SetPrefetchInformation", new Timed(FakePernix::reset, checked(() -> {
            Lib.JNI.KX_SetPrefetchInformation(UNIT, s, p);
            return p;
        })));
        Case lus = new Cases.LogicalUnits();
        m.put("KX_GetLogicalUnit", new Timed(() -> lus.script(false), checked(lus::callNative)));
        // One host group's options: eight ints (Linux, native multipath).
        byte[] hg = new byte[32];
        ByteBuffer.wrap(hg).order(ByteOrder.LITTLE_ENDIAN).putInt(16, 1).putInt(20, 1);
        m.put("KX_GetHGOption", new Timed(() -> script("KX_GetHGOption", 5, hg),
            checked(() -> Lib.JNI.KX_GetHGOption(UNIT, s, 0, 0, 0))));
        for (Case c : List.of(new HostPortCases.LuGuardTable(), new LuMappingCase(), new PerfCases.Statistics(),
                new PerfCases.Snapshots())) {
            m.put(c.name(), new Timed(() -> c.script(false), checked(c::callNative)));
        }
        return m;
    }

    private static void text(ByteBuffer b, int at, String s) {
        byte[] t = s.getBytes(StandardCharsets.US_ASCII);
        for (int i = 0; i < t.length; i++) b.put(at + i, t[i]);
    }

    private static void script(String fn, int arg, byte[] data) {
        FakePernix.reset();
        FakePernix.willWrite(fn, arg, data);
    }

    /**
     * Answers the driver: "round NAME... CALLS" times each named call CALLS times
     * (warm-up first, once per call) and prints "s NAME cpu,...;wall,...";
     * "sessions N" runs the sample session N times; "quit" ends.
     */
    private static void serve(Map<String, Timed> calls, boolean sim) throws Exception {
        PrintStream out = System.out;
        BufferedReader in = new BufferedReader(new InputStreamReader(System.in, StandardCharsets.UTF_8));
        java.util.Set<String> warm = new java.util.HashSet<>();
        out.println("ready");
        out.flush();
        for (String line; (line = in.readLine()) != null;) {
            String[] w = line.trim().split(" ");
            if (w[0].equals("quit")) break;
            if (w[0].equals("round")) {
                int n = Integer.parseInt(w[w.length - 1]);
                for (int k = 1; k < w.length - 1; k++) {
                    Timed t = calls.get(w[k]);
                    if (warm.add(w[k])) time(t, WARMUP, null);
                    long[] cpu = new long[n], wall = new long[n];
                    time(t, n, new long[][] {cpu, wall});
                    out.println("s " + w[k] + " " + join(cpu) + ";" + join(wall));
                }
            } else if (w[0].equals("sessions") && sim) {
                int n = Integer.parseInt(w[1]);
                long[] cpu = new long[n], wall = new long[n];
                for (int i = 0; i < n; i++) {
                    reset();
                    long[] t = session();
                    cpu[i] = t[0];
                    wall[i] = t[1];
                }
                out.println("s session " + join(cpu) + ";" + join(wall));
            } else {
                throw new IllegalArgumentException(line);
            }
            out.println("end");
            out.flush();
        }
    }

    private static void time(Timed t, int n, long[][] into) {
        for (int i = 0; i < n; i++) {
            if (t.prepare() != null) t.prepare().run();
            long c0 = THREADS.getCurrentThreadCpuTime();
            long w0 = System.nanoTime();
            Object r = t.call().get();
            long w1 = System.nanoTime();
            long c1 = THREADS.getCurrentThreadCpuTime();
            sink = r;
            if (into != null) {
                into[0][i] = c1 - c0;
                into[1][i] = w1 - w0;
            }
        }
    }

    private static String join(long[] v) {
        StringBuilder b = new StringBuilder();
        for (long x : v) b.append(b.length() == 0 ? "" : ",").append(x);
        return b.toString();
    }

    /** The database back to the default array, by the tool, in another process. */
    private static void reset() throws Exception {
        Process p = new ProcessBuilder(System.getProperty("simbench.tool"), "reset", "--yes")
            .redirectErrorStream(true).redirectOutput(ProcessBuilder.Redirect.DISCARD).start();
        if (p.waitFor() != 0) throw new IllegalStateException("pernix-sim reset failed");
    }

    /**
     * The sample session, as its main runs it (a fresh object, its session, its
     * logout), printing into a buffer; CPU and elapsed time in ns.
     */
    private static long[] session() throws Exception {
        Class<?> c = Class.forName("SampleSession");
        Constructor<?> make = c.getDeclaredConstructor();
        Method run = c.getDeclaredMethod("run");
        Method logout = c.getDeclaredMethod("logout");
        run.setAccessible(true);
        logout.setAccessible(true);
        make.setAccessible(true);
        PrintStream was = System.out;
        ByteArrayOutputStream text = new ByteArrayOutputStream(1 << 16);
        System.setOut(new PrintStream(text, false, StandardCharsets.UTF_8));
        long c0, w0, c1, w1;
        try {
            c0 = THREADS.getCurrentThreadCpuTime();
            w0 = System.nanoTime();
            Object s = make.newInstance();
            try {
                run.invoke(s);
            } finally {
                logout.invoke(s);
            }
            w1 = System.nanoTime();
            c1 = THREADS.getCurrentThreadCpuTime();
        } finally {
            System.out.flush();
            System.setOut(was);
        }
        String report = text.toString(StandardCharsets.UTF_8);
        if (!report.contains("Made LU")) throw new IllegalStateException("the sample session made no LU:\n" + report);
        return new long[] {c1 - c0, w1 - w0};
    }

    /** Commits prefetch settings 1, 2, 3, ... and prints "ack N" after each returns. */
    private static void stream(KXSessionInfo s) throws Exception {
        PrefetchInformation p = Lib.JNI.KX_GetPrefetchInformation(UNIT, s);
        System.out.println("ready");
        System.out.flush();
        for (int i = 1;; i = i % 16384 + 1) {
            p.stg_next = i;
            Lib.JNI.KX_SetPrefetchInformation(UNIT, s, p);
            System.out.println("ack " + i);
            System.out.flush();
        }
    }

    private static void verify(KXSessionInfo s) throws Exception {
        System.out.println("held " + Lib.JNI.KX_GetPrefetchInformation(UNIT, s).stg_next);
    }

    // ---- the driver

    private static final class Child {
        final String name;
        final Process p;
        final BufferedReader out;
        final PrintStream in;

        Child(String name, List<String> cmd, Map<String, String> env) throws IOException {
            this.name = name;
            ProcessBuilder b = new ProcessBuilder(cmd).redirectError(ProcessBuilder.Redirect.INHERIT);
            b.environment().putAll(env);
            p = b.start();
            out = new BufferedReader(new InputStreamReader(p.getInputStream(), StandardCharsets.UTF_8));
            in = new PrintStream(p.getOutputStream(), true, StandardCharsets.UTF_8);
            expect("ready");
        }

        String line() throws IOException {
            String l = out.readLine();
            if (l == null) throw new IllegalStateException(name + " ended early");
            return l;
        }

        void expect(String what) throws IOException {
            String l = line();
            if (!l.equals(what)) throw new IllegalStateException(name + " said: " + l);
        }

        /** Sends a command; collects its samples into the table under key prefix. */
        void ask(String command, Map<String, Samples> into) throws IOException {
            in.println(command);
            for (String l; !(l = line()).equals("end");) {
                String[] w = l.split(" ");
                if (!w[0].equals("s")) throw new IllegalStateException(name + " said: " + l);
                into.computeIfAbsent(name + "/" + w[1], k -> new Samples()).add(w[2]);
            }
        }

        void quit() throws InterruptedException {
            in.println("quit");
            if (!p.waitFor(60, TimeUnit.SECONDS)) p.destroyForcibly();
        }
    }

    private static final class Samples {
        final List<Long> cpu = new ArrayList<>(), wall = new ArrayList<>();

        void add(String field) {
            String[] h = field.split(";");
            for (String x : h[0].split(",")) cpu.add(Long.parseLong(x));
            for (String x : h[1].split(",")) wall.add(Long.parseLong(x));
        }

        static double q(List<Long> v, double q) {
            long[] a = v.stream().mapToLong(Long::longValue).sorted().toArray();
            int i = (int) Math.ceil(q * a.length) - 1;
            return a[Math.max(0, Math.min(a.length - 1, i))];
        }
    }

    private static final class Driver {
        final String java = Path.of(System.getProperty("java.home"), "bin", "java").toString();
        final Path work;
        final Map<String, Samples> samples = new LinkedHashMap<>();

        Driver() throws IOException {
            work = Path.of(System.getProperty("simbench.work", System.getProperty("java.io.tmpdir")))
                .resolve("simbench-" + ProcessHandle.current().pid());
            Files.createDirectories(work);
        }

        String prop(String name) {
            String v = System.getProperty(name);
            if (v == null || v.isEmpty()) throw new IllegalStateException("-D" + name + " is not set");
            return v;
        }

        List<String> jvm(String role, String library, String... more) {
            List<String> c = new ArrayList<>(List.of(java, "-Xms512m", "-Xmx512m", "-XX:+AlwaysPreTouch",
                "-Dkx.library=" + library, "-Dsimbench.role=" + role,
                "-Dsimbench.warmup=" + WARMUP, "-Dsimbench.tool=" + prop("simbench.tool")));
            c.addAll(List.of(more));
            c.addAll(List.of("-cp", System.getProperty("java.class.path"), SimBench.class.getName()));
            return c;
        }

        /** The environment of a simulator child on a new database file (more: further variables). */
        Map<String, String> simEnv(String db, String... more) throws IOException {
            Files.deleteIfExists(work.resolve(db));
            return simEnvOn(db, more);
        }

        Map<String, String> simEnvOn(String db, String... more) {
            Path file = work.resolve(db);
            Map<String, String> e = new LinkedHashMap<>();
            e.put("LD_LIBRARY_PATH", prop("simbench.simdir"));
            e.put("PERNIX_SIM_DB", file.toString());
            e.put("PERNIX_SIM_FAULTS", "");
            e.put("PERNIX_SIM_TOOL", prop("simbench.tool"));  // the sample session's host and clock
            for (int i = 0; i + 1 < more.length; i += 2) e.put(more[i], more[i + 1]);
            return e;
        }

        void run() throws Exception {
            String started = ZonedDateTime.now(ZoneOffset.UTC).format(DateTimeFormatter.ofPattern("d MMM yyyy HH:mm"));
            String loadBefore = load();
            System.out.printf("Simulator benchmark, %s UTC, %s %s, %s, load average %s%n", started,
                System.getProperty("java.vm.name"), System.getProperty("java.version"), cpu(), loadBefore);
            System.out.printf("%d rounds; per round and call %d timed calls (the full model's LU list %d) after %d"
                + " warm-up calls; medians and p99 over all rounds.%n", ROUNDS, CALLS, fullListCalls(), WARMUP);
            System.out.flush();

            String plain = prop("simbench.plain");
            Child dbl = new Child("double", jvm("double", prop("kx.library"), "-Dkx.fake=" + prop("kx.fake")),
                Map.of("LD_LIBRARY_PATH", new File(prop("kx.fake")).getParent()));
            Child sim = new Child("sim", jvm("sim", plain), simEnv("default.db"));
            Child full = new Child("full", jvm("sim", plain), simEnv("full.db", "PERNIX_SIM_LUS", "4096",
                "PERNIX_SIM_RAID_GROUPS", "12"));
            String all = String.join(" ", CALL_NAMES);
            String fullSmall = String.join(" ", Arrays.copyOf(CALL_NAMES, CALL_NAMES.length - 1));
            for (int r = 0; r < ROUNDS; r++) {
                dbl.ask("round " + all + " " + CALLS, samples);
                sim.ask("round " + all + " " + CALLS, samples);
                full.ask("round " + fullSmall + " " + CALLS, samples);
                full.ask("round KX_GetLogicalUnit " + fullListCalls(), samples);
                library("lib", "default.db", CALLS, CALL_NAMES);
                library("libfull", "full.db", CALLS, Arrays.copyOf(CALL_NAMES, CALL_NAMES.length - 1));
                library("libfull", "full.db", fullListCalls(), "KX_GetLogicalUnit");
                String small = String.join(" ", FAMILY_SMALL), large = String.join(" ", FAMILY_LARGE);
                dbl.ask("round " + small + " " + CALLS, samples);
                sim.ask("round " + small + " " + CALLS, samples);
                dbl.ask("round " + large + " " + fullListCalls(), samples);
                sim.ask("round " + large + " " + fullListCalls(), samples);
                library("lib", "default.db", CALLS, FAMILY_SMALL);
                library("lib", "default.db", fullListCalls(), FAMILY_LARGE);
                System.err.printf("round %d of %d done%n", r + 1, ROUNDS);
            }
            dbl.quit();
            full.quit();
            sim.ask("sessions " + SESSIONS, samples);
            sim.quit();

            List<Double> cold = new ArrayList<>();
            for (int i = 0; i < COLD; i++) cold.add(coldSession(i));
            String kill = killCheck();

            table(cold, kill);
            System.out.printf("Load average at the end: %s%n", load());
            try (var files = Files.walk(work)) {
                for (Path f : files.sorted(Comparator.reverseOrder()).toList()) Files.delete(f);
            }
        }

        /** The calls timed in the simulator alone (bench_sim_calls), on a database a JVM child seeded. */
        void library(String key, String db, int calls, String... names) throws Exception {
            List<String> cmd = new ArrayList<>(List.of(prop("simbench.lib"), String.valueOf(calls),
                String.valueOf(WARMUP)));
            cmd.addAll(List.of(names));
            ProcessBuilder b = new ProcessBuilder(cmd).redirectError(ProcessBuilder.Redirect.INHERIT);
            b.environment().putAll(simEnvOn(db));
            Process p = b.start();
            String text = new String(p.getInputStream().readAllBytes(), StandardCharsets.UTF_8);
            if (p.waitFor() != 0) throw new IllegalStateException("bench_sim_calls failed:\n" + text);
            for (String l : text.split("\n")) {
                String[] w = l.split(" ");
                samples.computeIfAbsent(key + "/" + w[1], k -> new Samples()).add(w[2]);
            }
        }

        int fullListCalls() {
            return Math.max(1, CALLS / 5);
        }

        /** The sample session in a fresh JVM on a new database: the figure it prints itself, in ms. */
        double coldSession(int i) throws Exception {
            List<String> cmd = List.of(java, "-Dkx.library=" + prop("simbench.plain"), "-cp",
                prop("simbench.examples"), "SampleSession");
            ProcessBuilder b = new ProcessBuilder(cmd).redirectErrorStream(true);
            b.environment().putAll(simEnv("cold-" + i + ".db"));
            Process p = b.start();
            String text = new String(p.getInputStream().readAllBytes(), StandardCharsets.UTF_8);
            if (p.waitFor() != 0) throw new IllegalStateException("sample session failed:\n" + text);
            Matcher m = Pattern.compile("Session time: ([0-9.]+) ms").matcher(text);
            if (!m.find()) throw new IllegalStateException("no session time in:\n" + text);
            return Double.parseDouble(m.group(1));
        }

        /** A stream of committed settings killed by SIGKILL; the last acknowledged one must be kept. */
        String killCheck() throws Exception {
            Map<String, String> env = simEnv("kill.db");
            Child s = new Child("stream", jvm("stream", prop("simbench.plain")), env);
            int last = 0;
            for (int i = 0; i < 2000; i++) last = ack(s.line());
            // SIGKILL through the handle: Process.destroyForcibly would close the
            // pipe before the acknowledgements already written are read.
            s.p.toHandle().destroyForcibly();
            s.p.waitFor();
            for (String l; (l = s.out.readLine()) != null;) last = ack(l);
            ProcessBuilder b = new ProcessBuilder(jvm("verify", prop("simbench.plain"))).redirectErrorStream(true);
            b.environment().putAll(env);
            Process v = b.start();
            String text = new String(v.getInputStream().readAllBytes(), StandardCharsets.UTF_8).trim();
            v.waitFor();
            if (!text.startsWith("held ")) throw new IllegalStateException("verify said: " + text);
            int held = Integer.parseInt(text.substring(5));
            boolean ok = held == last || held == last % 16384 + 1;
            String r = String.format(Locale.ROOT, "killed with SIGKILL after %d acknowledged changes: last"
                + " acknowledged %d, the database holds %d: %s", last, last, held,
                ok ? "kept" : "LOST");
            if (!ok) System.err.println(r);
            return r;
        }

        int ack(String l) {
            if (!l.startsWith("ack ")) throw new IllegalStateException("stream said: " + l);
            return Integer.parseInt(l.substring(4));
        }

        void table(List<Double> cold, String kill) {
            System.out.println();
            System.out.println("Times in ms per call, CPU time of the calling thread (median, p99) unless \"wall\""
                + " (elapsed time).  median, p99, wall: Java through the bridge into the simulator; LUs 8: the default"
                + " array (2 RAID groups), 4096: 12 RAID groups holding all 4096 LUs.");
            System.out.println("double: the test build's bridge over the test double (the same for both models).");
            System.out.println("sim - double: the simulator's median minus the double's; library: the same calls"
                + " timed in the simulator alone, from C++ (bench_sim_calls), on the same database.");
            System.out.println();
            System.out.printf(Locale.ROOT, "%-28s %-5s %8s %8s %8s %8s %8s %8s %8s %8s %8s%n", "call", "LUs",
                "median", "p99", "double", "dbl p99", "sim-dbl", "library", "lib p99", "wall med", "wall p99");
            List<String> names = new ArrayList<>(List.of(CALL_NAMES));
            names.addAll(List.of(FAMILY_SMALL));
            names.addAll(List.of(FAMILY_LARGE));
            for (String n : names) {
                Samples d = samples.get("double/" + n);
                for (String model : List.of("sim", "full")) {
                    Samples s = samples.get(model + "/" + n);
                    if (s == null) continue;
                    Samples l = samples.get((model.equals("sim") ? "lib/" : "libfull/") + n);
                    double dm = Samples.q(d.cpu, 0.5);
                    System.out.printf(Locale.ROOT, "%-28s %-5s %8.3f %8.3f %8.3f %8.3f %8.3f %8.3f %8.3f %8.3f %8.3f%n",
                        n, model.equals("sim") ? "8" : "4096", ms(Samples.q(s.cpu, 0.5)), ms(Samples.q(s.cpu, 0.99)),
                        ms(dm), ms(Samples.q(d.cpu, 0.99)), ms(Samples.q(s.cpu, 0.5) - dm),
                        ms(Samples.q(l.cpu, 0.5)), ms(Samples.q(l.cpu, 0.99)),
                        ms(Samples.q(s.wall, 0.5)), ms(Samples.q(s.wall, 0.99)));
                }
            }
            Samples s = samples.get("sim/session");
            System.out.printf(Locale.ROOT, "%-28s %-5s %8.3f %8.3f %8s %8s %8s %8s %8s %8.3f %8.3f%n",
                "sample session (warm)", "8", ms(Samples.q(s.cpu, 0.5)), ms(Samples.q(s.cpu, 0.99)), "-", "-", "-",
                "-", "-",
                ms(Samples.q(s.wall, 0.5)), ms(Samples.q(s.wall, 0.99)));
            List<Double> c = new ArrayList<>(cold);
            c.sort(null);
            System.out.printf(Locale.ROOT, "%-28s %-5s %8s %8s %8s %8s %8s %8s %8s %8.3f %8s%n",
                "sample session (new JVM)", "8", "-", "-", "-", "-", "-", "-", "-", c.get(c.size() / 2), "-");
            System.out.println();
            System.out.printf("sample session (warm): %d runs in the sim JVM, each after pernix-sim reset (outside"
                + " the timing), its report printed into memory.%n", s.cpu.size());
            System.out.printf(Locale.ROOT, "sample session (new JVM): median of %d runs (%s ms), each in a new JVM on"
                + " a new database file (seeding included), the time the session prints itself.%n", cold.size(),
                cold.stream().map(x -> String.format(Locale.ROOT, "%.0f", x)).toList());
            System.out.println("Setter durability: " + kill);
        }

        static double ms(double ns) {
            return ns / 1e6;
        }

        static String load() {
            try {
                String[] w = Files.readString(Path.of("/proc/loadavg")).split(" ");
                return w[0] + " " + w[1] + " " + w[2];
            } catch (IOException e) {
                return "?";
            }
        }

        static String cpu() {
            try {
                String model = Files.readAllLines(Path.of("/proc/cpuinfo")).stream()
                    .filter(l -> l.startsWith("model name")).findFirst().map(l -> l.replaceFirst(".*:\\s*", ""))
                    .orElse("?");
                return Runtime.getRuntime().availableProcessors() + " cores (" + model + ")";
            } catch (IOException e) {
                return "?";
            }
        }
    }
}
