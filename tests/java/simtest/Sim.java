package simtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertTrue;
import static org.junit.Assert.fail;

import java.io.BufferedReader;
import java.io.IOException;
import java.io.InputStreamReader;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.Modifier;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.LinkedBlockingQueue;
import java.util.concurrent.TimeUnit;
import java.util.regex.Pattern;
import orvane.str.diskarray.AreaInfo;
import orvane.str.diskarray.DiskArrayException;
import orvane.str.diskarray.DiskArrayUtilityJNI;
import orvane.str.diskarray.DiskDrive;
import orvane.str.diskarray.KXAccountBaseInfo;
import orvane.str.diskarray.KXAccountLogin;
import orvane.str.diskarray.KXAccountLogout;
import orvane.str.diskarray.KXAccountRole;
import orvane.str.diskarray.KXAccountRoleInformation;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.LogicalUnit;
import orvane.str.diskarray.RGAreaInformation;
import orvane.str.diskarray.RgDetail;

/**
 * What the end-to-end suites share: the bridge, the default unit and account,
 * result codes, the pernix-sim tool, child JVMs and a field-by-field
 * comparison of record objects.  The runner (tests/run_sim.sh) gives every
 * test class a fresh database (PERNIX_SIM_DB) and these properties:
 * sim.java (the JVM launcher), sim.tool (pernix-sim), sim.dir (a folder of the
 * class's own).
 */
final class Sim {
    private Sim() {}

    // The simulator's result codes (sim/README.md).
    static final int UNKNOWN_UNIT = 12289;
    static final int NOT_LOGGED_IN = 12290;
    static final int EXPIRED = 12291;
    static final int BAD_PARAMETER = 12292;
    static final int EXISTS = 12293;
    static final int NO_SUCH_OBJECT = 12294;
    static final int CAPACITY = 12295;
    static final int BUSY = 12296;
    static final int DB_ERROR = 12297;
    static final int PERMISSION = 12298;
    static final int AUTH_FAILED = 12299;
    static final int READ_ONLY = 12301;
    static final int CORRUPT = 12302;

    static final DiskArrayUtilityJNI JNI = new DiskArrayUtilityJNI();
    static final String UNIT = env("PERNIX_SIM_UNIT", "SIM01");
    static final String ADMIN = env("PERNIX_SIM_ADMIN_USER", "admin");
    static final String PASSWORD = env("PERNIX_SIM_ADMIN_PASSWORD", "pernix-sim");

    /** One call into the bridge. */
    interface Call {
        void run() throws Exception;
    }

    /** The code of the DiskArrayException the call throws, 0 when it returns. */
    static int codeOf(Call call) throws Exception {
        try {
            call.run();
            return 0;
        } catch (Exception e) {
            // The natives throw it without declaring it.
            if (e instanceof DiskArrayException) {
                return ((DiskArrayException) e).getCode();
            }
            throw e;
        }
    }

    static void expect(int code, Call call) throws Exception {
        assertEquals("result code", code, codeOf(call));
    }

    static String env(String name, String fallback) {
        String v = System.getenv(name);
        return v == null || v.isEmpty() ? fallback : v;
    }

    static Path dir() {
        return Paths.get(System.getProperty("sim.dir"));
    }

    static Path db() {
        return Paths.get(System.getenv("PERNIX_SIM_DB"));
    }

    // ---- sessions and accounts

    static KXSessionInfo login(String user, String password) throws Exception {
        KXAccountLogin l = new KXAccountLogin();
        l.user_id = user;
        l.passwd = password;
        l.log_option = 0;
        l.log_string = "simtest";
        KXSessionInfo s = JNI.KX_LoginKXAccount(UNIT, l);
        assertNotNull("login returned no session", s);
        return s;
    }

    static KXSessionInfo admin() throws Exception {
        return login(ADMIN, PASSWORD);
    }

    static void logout(KXSessionInfo s) throws Exception {
        KXAccountLogout out = new KXAccountLogout();
        out.log_option = 0;
        JNI.KX_LogoutKXAccount(UNIT, s, out);
    }

    /** The number of the role the array names so. */
    static int role(KXSessionInfo s, String name) throws Exception {
        KXAccountRoleInformation roles = JNI.KX_GetKXAccountRoleInformation(UNIT, s);
        for (int i = 0; i < roles.role_info.length; i++) {
            KXAccountRole r = roles.role_info[i];
            if (r != null && name.equalsIgnoreCase(r.role_name)) {
                return i;
            }
        }
        fail("no role named " + name + " among " + roles.role_valid_index + " roles");
        return -1;
    }

    static void createAccount(KXSessionInfo s, String user, String password, int role) throws Exception {
        KXAccountBaseInfo b = new KXAccountBaseInfo();
        b.user_id = user;
        b.set_passwd = 1;
        b.passwd = password;
        b.account_type = 0;
        b.role = role;
        b.account_enable = 1;
        JNI.KX_CreateAccount(UNIT, s, b);
    }

    /** Joins a wide value's high and low words. */
    static long wide(int high, int low) {
        return ((long) high << 32) | (low & 0xffffffffL);
    }

    // ---- the storage model checked whole

    /**
     * Every RAID group's areas tile its capacity exactly (no overlap, no gap,
     * no two free areas side by side); its LUs are those the LU list puts in
     * it, each area as large as its LU; the free capacity is the free areas'
     * sum and the largest LU that fits the largest of them; every drive a
     * group has is marked in use and no other.
     */
    static void consistent(KXSessionInfo s) throws Exception {
        Map<Integer, LogicalUnit> lus = new HashMap<>();
        for (LogicalUnit l : JNI.KX_GetLogicalUnit(UNIT, s)) {
            if (l.lu_valid != 0) {
                lus.put(l.luNumber, l);
            }
        }
        int seen = 0;
        int drivesInGroups = 0;
        for (RgDetail g : JNI.KX_GetRaidGroupInformation(UNIT, s).rg) {
            if (g.valid_index == 0) {
                continue;
            }
            drivesInGroups += g.parity_hdu_count * g.parity_count;
            String where = "RAID group " + g.rgnum;
            RGAreaInformation a = JNI.KX_GetRGAreaInformation(UNIT, s, g.rgnum);
            long sum = 0, free = 0, largest = 0;
            int before = -1;
            boolean lastFree = false;
            for (int i = 0; i < a.area_count; i++) {
                AreaInfo x = a.area[i];
                long size = wide(x.area_capa_h, x.area_capa_l);
                assertTrue(where + " area " + i + " is empty", size > 0);
                assertEquals(where + " area " + i + " follows", before, x.befor_lun);
                sum += size;
                if (x.areakind == 0) {
                    assertTrue(where + ": two free areas side by side", !lastFree);
                    free += size;
                    largest = Math.max(largest, size);
                    lastFree = true;
                } else {
                    LogicalUnit l = lus.get(x.lun);
                    assertTrue(where + " names LU " + x.lun + " the list lacks", l != null);
                    assertEquals("LU " + x.lun + " group", g.rgnum, l.rgNumber);
                    assertEquals("LU " + x.lun + " size", l.capacity, size);
                    before = x.lun;
                    lastFree = false;
                    seen++;
                }
            }
            assertEquals(where + ": areas cover the capacity", wide(g.total_capa_h, g.total_capa_l), sum);
            assertEquals(where + ": free capacity", wide(g.rest_capa_h, g.rest_capa_l), free);
            assertEquals(where + ": largest LU", Math.min(largest, Integer.MAX_VALUE), a.lumaxcapa);
        }
        assertEquals("LUs in no group's areas", lus.size(), seen);
        int inUse = 0;
        for (DiskDrive d : JNI.KX_GetDriveStatus(UNIT, s)) {
            inUse += d.mount != 0 && d.attribute != 0 ? 1 : 0;
        }
        assertEquals("drives in use", drivesInGroups, inUse);
    }

    // ---- the tool

    /** Runs pernix-sim on this class's database; its output. */
    static String tool(String... args) throws Exception {
        List<String> cmd = new ArrayList<>();
        cmd.add(System.getProperty("sim.tool"));
        cmd.addAll(Arrays.asList(args));
        ProcessBuilder pb = new ProcessBuilder(cmd).redirectErrorStream(true);
        Process p = pb.start();
        String out = new String(p.getInputStream().readAllBytes(), StandardCharsets.UTF_8);
        assertTrue("pernix-sim " + String.join(" ", args) + " did not finish",
                p.waitFor(60, TimeUnit.SECONDS));
        assertEquals("pernix-sim " + String.join(" ", args) + ":\n" + out, 0, p.exitValue());
        return out;
    }

    /** Steps the simulator's clock. */
    static void clock(long seconds) throws Exception {
        tool("clock", (seconds >= 0 ? "+" : "") + seconds);
    }

    // ---- child JVMs

    private static final Pattern JNI_TROUBLE =
            Pattern.compile("WARNING in native method|FATAL ERROR|WARNING: JNI|^Warning: ");

    /**
     * A JVM running {@link Child} with the same launcher, library path and
     * class path as this one, on the database the environment names (this
     * class's unless env changes it).  Its output is read line by line.
     */
    static final class Proc implements AutoCloseable {
        final Process process;
        private final BlockingQueue<String> lines = new LinkedBlockingQueue<>();
        private final List<String> all = new ArrayList<>();
        private final Thread reader;
        private static final String EOF = "\u0000eof";

        Proc(Map<String, String> env, String... args) throws IOException {
            this(List.of(), env, args);
        }

        /**
         * The same JVM run as nobody (by root, through setpriv), from copies of
         * its classes and libraries in this class's folder: the checkout may
         * sit in a folder nobody cannot enter.
         */
        static Proc asNobody(Map<String, String> env, String... args) throws IOException {
            Path stage = dir().resolve("as-nobody");
            String cp = staged(stage.resolve("cp"), System.getProperty("java.class.path"), false);
            String lib = staged(stage.resolve("lib"), System.getProperty("java.library.path"), true);
            Map<String, String> e = new HashMap<>(env == null ? Map.of() : env);
            String ld = System.getenv("LD_LIBRARY_PATH");
            if (ld != null) e.put("LD_LIBRARY_PATH", staged(stage.resolve("ld"), ld, true));
            return new Proc(List.of("setpriv", "--reuid=nobody", "--regid=nogroup", "--clear-groups"), e, cp, lib,
                            args);
        }

        /** Copies of the entries of a path list under `to` (folders of libraries: their shared objects only). */
        private static String staged(Path to, String list, boolean libraries) throws IOException {
            List<String> out = new ArrayList<>();
            String[] entries = list.split(java.io.File.pathSeparator);
            for (int i = 0; i < entries.length; i++) {
                if (entries[i].isEmpty()) continue;
                Path from = Paths.get(entries[i]);
                Path copy = to.resolve(String.valueOf(i));
                if (Files.isRegularFile(from)) {
                    Files.createDirectories(copy);
                    copy = copy.resolve(from.getFileName());
                    if (!Files.exists(copy)) Files.copy(from, copy);
                } else if (Files.isDirectory(from) && !Files.exists(copy)) {
                    try (java.util.stream.Stream<Path> walk = Files.walk(from)) {
                        for (Path f : (Iterable<Path>) walk::iterator) {
                            Path target = copy.resolve(from.relativize(f).toString());
                            if (Files.isDirectory(f)) {
                                if (!libraries) Files.createDirectories(target);
                            } else if (!libraries || (f.getParent().equals(from) && f.getFileName().toString().contains(".so"))) {
                                Files.createDirectories(target.getParent());
                                Files.copy(f, target);
                            }
                        }
                    }
                    Files.createDirectories(copy);
                }
                out.add(copy.toString());
            }
            return String.join(java.io.File.pathSeparator, out);
        }

        private Proc(List<String> prefix, Map<String, String> env, String... args) throws IOException {
            this(prefix, env, System.getProperty("java.class.path"), System.getProperty("java.library.path"), args);
        }

        private Proc(List<String> prefix, Map<String, String> env, String cp, String lib, String... args)
                throws IOException {
            List<String> cmd = new ArrayList<>(prefix);
            cmd.addAll(Arrays.asList(System.getProperty("sim.java"), "-Xcheck:jni", "-ea",
                    "-Djava.library.path=" + lib,
                    "-Dsim.java=" + System.getProperty("sim.java"), "-Dsim.tool=" + System.getProperty("sim.tool"),
                    "-Dsim.dir=" + System.getProperty("sim.dir"), "-cp", cp,
                    "simtest.Child"));
            cmd.addAll(Arrays.asList(args));
            ProcessBuilder pb = new ProcessBuilder(cmd).redirectErrorStream(true);
            if (env != null) {
                for (Map.Entry<String, String> e : env.entrySet()) {
                    if (e.getValue() == null) {
                        pb.environment().remove(e.getKey());
                    } else {
                        pb.environment().put(e.getKey(), e.getValue());
                    }
                }
            }
            process = pb.start();
            reader = new Thread(() -> {
                try (BufferedReader r = new BufferedReader(
                        new InputStreamReader(process.getInputStream(), StandardCharsets.UTF_8))) {
                    for (String line; (line = r.readLine()) != null; ) {
                        lines.add(line);
                    }
                } catch (IOException e) {
                    // the process went away: the end of its output
                } finally {
                    lines.add(EOF);
                }
            });
            reader.setDaemon(true);
            reader.start();
        }

        /** The next line, or null at the end of the output or after the timeout. */
        String next(long timeoutMs) throws InterruptedException {
            String line = lines.poll(timeoutMs, TimeUnit.MILLISECONDS);
            if (line == null || line.equals(EOF)) {
                if (line != null) {
                    lines.add(EOF);
                }
                return null;
            }
            all.add(line);
            checkJni(line);
            return line;
        }

        /** Waits for the exit; every line it printed. */
        List<String> finish(long timeoutSeconds) throws Exception {
            long end = System.nanoTime() + TimeUnit.SECONDS.toNanos(timeoutSeconds);
            while (next(Math.max(1, (end - System.nanoTime()) / 1_000_000)) != null) {
                // collected by next()
            }
            if (!process.waitFor(Math.max(1, (end - System.nanoTime()) / 1_000_000), TimeUnit.MILLISECONDS)) {
                process.destroyForcibly();
                fail("the child JVM did not finish in " + timeoutSeconds + " s; it said:\n" + String.join("\n", all));
            }
            reader.join(5000);
            return all;
        }

        /** Waits for the exit and requires status 0. */
        List<String> finishOk(long timeoutSeconds) throws Exception {
            List<String> out = finish(timeoutSeconds);
            assertEquals("the child JVM failed; it said:\n" + String.join("\n", out), 0, process.exitValue());
            return out;
        }

        List<String> output() {
            return all;
        }

        private void checkJni(String line) {
            System.out.println("  child: " + line);
            if (JNI_TROUBLE.matcher(line).find()) {
                fail("the child JVM reported JNI misuse: " + line);
            }
        }

        @Override
        public void close() {
            if (process.isAlive()) {
                process.destroyForcibly();
            }
        }
    }

    /** The lines of out that start with the word, without it. */
    static List<String> tagged(List<String> out, String word) {
        List<String> r = new ArrayList<>();
        for (String l : out) {
            if (l.startsWith(word + " ")) {
                r.add(l.substring(word.length() + 1));
            }
        }
        return r;
    }

    // ---- record objects compared field by field

    /**
     * Fails unless every public field of expected equals the same field of
     * actual, arrays element by element and record objects field by field;
     * the message names the first differing path.
     */
    static void assertSameFields(Object expected, Object actual) {
        compare(expected.getClass().getSimpleName(), expected, actual);
    }

    private static void compare(String path, Object e, Object a) {
        if (e == null || a == null) {
            if (e != a) {
                fail(path + ": expected " + e + " but was " + a);
            }
            return;
        }
        if (e.getClass() != a.getClass()) {
            fail(path + ": class " + e.getClass().getName() + " but was " + a.getClass().getName());
        }
        Class<?> c = e.getClass();
        if (c.isArray()) {
            int n = Array.getLength(e);
            if (n != Array.getLength(a)) {
                fail(path + ": length " + n + " but was " + Array.getLength(a));
            }
            for (int i = 0; i < n; i++) {
                compare(path + "[" + i + "]", Array.get(e, i), Array.get(a, i));
            }
            return;
        }
        if (c.getName().startsWith("orvane.str.diskarray.")) {
            for (Field f : c.getFields()) {
                if (Modifier.isStatic(f.getModifiers())) {
                    continue;
                }
                try {
                    compare(path + "." + f.getName(), f.get(e), f.get(a));
                } catch (IllegalAccessException x) {
                    throw new AssertionError(x);
                }
            }
            return;
        }
        if (!e.equals(a)) {
            fail(path + ": expected <" + e + "> but was <" + a + ">");
        }
    }

    static byte[] read(Path p) throws IOException {
        return Files.readAllBytes(p);
    }
}
