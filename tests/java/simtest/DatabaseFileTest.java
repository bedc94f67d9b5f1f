package simtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.attribute.PosixFilePermissions;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import java.util.Random;
import org.junit.Test;

/**
 * A database file the simulator cannot use is answered with its code, never a
 * crash, and is never changed.  Each case runs in a child JVM pointed at the
 * file.
 */
public class DatabaseFileTest {
    @Test
    public void aFileOfGarbageAnswersEveryCallAndStaysAsItWas() throws Exception {
        Path file = Sim.dir().resolve("garbage.db");
        byte[] junk = new byte[8192];
        new Random(20261125).nextBytes(junk);
        Files.write(file, junk);

        List<String> out = calls(file, false, "count", "param", "table", "login", "unit-add", "unit-delete");
        for (String line : Sim.tagged(out, "CODE")) {
            assertTrue(line, line.endsWith(" " + Sim.CORRUPT));
        }
        assertEquals(6, Sim.tagged(out, "CODE").size());
        assertArrayEquals("the file changed", junk, Files.readAllBytes(file));
        assertTrue(!Files.exists(Sim.dir().resolve("garbage.db-wal")));
    }

    @Test
    public void aReadOnlyDatabaseIsReadAndRefusesChanges() throws Exception {
        // Read-only file, folder open (the journal's side files can be made).
        Map<String, Integer> codes = readOnly("rwxrwxrwx");
        for (String read : new String[] {"count", "param", "rg-info"}) {
            assertEquals(codes + ": " + read, Integer.valueOf(0), codes.get(read));
        }
    }

    @Test
    public void aDatabaseInAReadOnlyFolderRefusesChanges() throws Exception {
        readOnly("r-xr-xr-x");
    }

    /**
     * Seeds a database and logs in while it is writable, makes the file
     * read-only and its folder the mode given, then calls reads and changes
     * in a JVM bound by those modes: every change answers 12301 and the file
     * stays as it was.  The codes of every call.
     */
    private static Map<String, Integer> readOnly(String folderMode) throws Exception {
        Path dir = Sim.dir().resolve("ro-" + folderMode.hashCode());
        Files.createDirectory(dir);
        Path file = dir.resolve("array.db");
        List<String> first = calls(file, false, "login");
        String session = Sim.tagged(first, "SESSION").get(0);
        Files.setPosixFilePermissions(file, PosixFilePermissions.fromString("r--r--r--"));
        Files.setPosixFilePermissions(dir, PosixFilePermissions.fromString(folderMode));
        try {
            byte[] before = Files.readAllBytes(file);
            List<String> out = calls(file, true, "--session", session, "count", "param", "rg-info",
                    "rg-create", "unit-add", "keep", "login");
            Map<String, Integer> codes = new HashMap<>();
            for (String line : Sim.tagged(out, "CODE")) {
                String[] w = line.split(" ");
                codes.put(w[0], Integer.parseInt(w[1]));
            }
            for (String change : new String[] {"rg-create", "unit-add", "keep", "login"}) {
                assertEquals(out + ": " + change, Integer.valueOf(Sim.READ_ONLY), codes.get(change));
            }
            assertArrayEquals("the file changed", before, Files.readAllBytes(file));
            return codes;
        } finally {
            Files.setPosixFilePermissions(dir, PosixFilePermissions.fromString("rwxr-xr-x"));
        }
    }

    /**
     * The calls of Child in a JVM on that database.  With asUser, as a user
     * whose rights the file's mode binds (root's are not bound by it: then
     * the JVM runs as nobody).
     */
    private static List<String> calls(Path db, boolean asUser, String... args) throws Exception {
        Map<String, String> env = new HashMap<>();
        env.put("PERNIX_SIM_DB", db.toString());
        List<String> a = new ArrayList<>();
        a.add(args.length == 1 && args[0].equals("login") ? "login" : "calls");
        if (!a.get(0).equals("login")) {
            a.addAll(List.of(args));
        }
        try (Sim.Proc p = asUser && isRoot() ? Sim.Proc.asNobody(env, a.toArray(new String[0]))
                                             : new Sim.Proc(env, a.toArray(new String[0]))) {
            return p.finishOk(120);
        }
    }

    static boolean isRoot() throws Exception {
        Process p = new ProcessBuilder("id", "-u").start();
        String uid = new String(p.getInputStream().readAllBytes()).trim();
        p.waitFor();
        return uid.equals("0");
    }
}
