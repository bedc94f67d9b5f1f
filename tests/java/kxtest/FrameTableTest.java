package kxtest;

import static org.junit.Assert.assertTrue;
import static org.junit.Assert.fail;

import java.io.IOException;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.IdentityHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.TreeSet;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import orvane.str.diskarray.DiskArrayUtilityJNI;
import org.junit.Test;

/**
 * The frame every native shares, checked for every native from one table: the
 * tests/frames/*.tsv files, a line per native (see {@link Row}).  Each native is
 * called with plain arguments: "u" for a String, a new instance for a record
 * object, an empty array of objects, a zero-filled primitive array of 65536
 * elements, 0 for an int.
 */
public class FrameTableTest extends BridgeTest {
    static final int LIBRARY_CODE = 1234;
    static final String RECORD_PACKAGE = "orvane.str.diskarray.";

    /**
     * One line: {@code KX_Name nulls flush [special] [key=value ...]}.
     * <ul>
     * <li>nulls: a letter per reference parameter in declaration order, or "-":
     *     R refused (258, nothing allocated, library not called), C goes on
     *     (library called), M 2817 without a call, Q null/0 quietly without a
     *     call, X covered by the native's own tests;
     * <li>flush: F on entry and before a successful return, N never, X other;
     * <li>special: only the null and flush columns hold for it;
     * <li>wipe=i,j: library arguments (0-based) whose blocks must be released wiped;
     * <li>failed=v: the int an int native answers after a failure (default 0);
     * <li>noflush=A,B: record classes whose writers do not flush stdout;
     * <li>limit=n: every String is copied with a limit of n bytes (NUL included), not its buffer's size.
     * </ul>
     */
    static final class Row {
        String where;
        String name;
        String nulls;
        char flush;
        boolean special;
        Set<Integer> wipe = new TreeSet<>();
        int failed;
        Set<String> noflush = new TreeSet<>();
        int limit;  // copy limit of every String (0: its buffer's size)
        Method method;

        public String toString() {
            return name + " (" + where + ")";
        }
    }

    /**
     * The table files: kx.frames names them, separated by the path separator
     * (the runner lists them, since a 32-bit JVM may fail to list a folder on a
     * file system with 64-bit inode numbers), or names the folder that holds them.
     */
    static List<Path> tableFiles() throws IOException {
        String given = System.getProperty("kx.frames", "tests/frames");
        Path dir = Paths.get(given);
        if (!Files.isDirectory(dir)) {
            List<Path> named = new ArrayList<>();
            for (String f : given.split(java.io.File.pathSeparator)) if (!f.isEmpty()) named.add(Paths.get(f));
            return named;
        }
        try (Stream<Path> s = Files.list(dir)) {
            return s.filter(p -> p.toString().endsWith(".tsv")).sorted().collect(Collectors.toList());
        }
    }

    static List<Row> readTable(List<String> problems) throws IOException {
        List<Row> rows = new ArrayList<>();
        for (Path file : tableFiles()) {
            List<String> lines = Files.readAllLines(file);
            for (int i = 0; i < lines.size(); i++) {
                String line = lines.get(i);
                int hash = line.indexOf('#');
                if (hash >= 0) line = line.substring(0, hash);
                line = line.trim();
                if (line.isEmpty()) continue;
                String[] t = line.split("\\s+");
                Row r = new Row();
                r.where = file.getFileName() + ":" + (i + 1);
                r.name = t[0];
                if (t.length < 3 || !t[1].matches("-|[RCMQX]+") || !t[2].matches("[FNX]")) {
                    problems.add(r.where + ": malformed line: " + lines.get(i));
                    continue;
                }
                r.nulls = t[1].equals("-") ? "" : t[1];
                r.flush = t[2].charAt(0);
                for (int k = 3; k < t.length; k++) {
                    String[] kv = t[k].split("=", 2);
                    if (t[k].equals("special")) {
                        r.special = true;
                    } else if (kv.length == 2 && kv[0].equals("wipe")) {
                        for (String v : kv[1].split(",")) r.wipe.add(Integer.parseInt(v));
                    } else if (kv.length == 2 && kv[0].equals("failed")) {
                        r.failed = Integer.parseInt(kv[1]);
                    } else if (kv.length == 2 && kv[0].equals("limit")) {
                        r.limit = Integer.parseInt(kv[1]);
                    } else if (kv.length == 2 && kv[0].equals("noflush")) {
                        r.noflush.addAll(Arrays.asList(kv[1].split(",")));
                    } else {
                        problems.add(r.where + ": unknown word " + t[k]);
                    }
                }
                rows.add(r);
            }
        }
        return rows;
    }

    /** The table joined with the Java declaration; fails listing every mismatch. */
    static List<Row> table() throws IOException {
        List<String> problems = new ArrayList<>();
        List<Row> rows = readTable(problems);
        Map<String, Method> declared = new TreeMap<>();
        for (Method m : DiskArrayUtilityJNI.class.getDeclaredMethods()) {
            if (Modifier.isNative(m.getModifiers())) declared.put(m.getName(), m);
        }
        Map<String, Row> seen = new TreeMap<>();
        for (Row r : rows) {
            if (seen.containsKey(r.name)) problems.add(r.where + ": second row of " + r.name);
            seen.put(r.name, r);
            r.method = declared.get(r.name);
            if (r.method == null) {
                problems.add(r.where + ": " + r.name + " is not a native of DiskArrayUtilityJNI");
                continue;
            }
            long refs = Arrays.stream(r.method.getParameterTypes()).filter(c -> !c.isPrimitive()).count();
            if (r.nulls.length() != refs) {
                problems.add(r.where + ": " + r.name + " has " + refs + " reference parameter(s), the row "
                             + r.nulls.length() + " letter(s)");
            }
        }
        for (String name : declared.keySet()) {
            if (!seen.containsKey(name)) problems.add("no row for native " + name);
        }
        if (!problems.isEmpty()) fail(problems.size() + " table problem(s):\n" + String.join("\n", problems));
        return rows;
    }

    // ------------------------------------------------------------ calling

    static final class Outcome {
        Object result;
        Throwable thrown;
    }

    static Object[] plainArgs(Method m) throws ReflectiveOperationException {
        Class<?>[] types = m.getParameterTypes();
        Object[] args = new Object[types.length];
        for (int i = 0; i < types.length; i++) {
            Class<?> t = types[i];
            if (t.isPrimitive()) args[i] = Array.get(Array.newInstance(t, 1), 0);  // 0, false
            else if (t == String.class) args[i] = "u";
            else if (t.isArray() && t.getComponentType().isPrimitive()) args[i] = Array.newInstance(t.getComponentType(), 65536);
            else if (t.isArray()) args[i] = Array.newInstance(t.getComponentType(), 0);
            else args[i] = VariantTable.plain(t);  // null when the class has no no-argument constructor
        }
        return args;
    }

    /** Plain arguments with reference parameter `nullRef` (counted among references only) null; -1: none. */
    Outcome invoke(Row r, int nullRef) throws ReflectiveOperationException {
        Object[] args = plainArgs(r.method);
        Class<?>[] types = r.method.getParameterTypes();
        for (int i = 0, ref = 0; i < types.length; i++) {
            if (types[i].isPrimitive()) continue;
            if (ref++ == nullRef) args[i] = null;
        }
        Outcome o = new Outcome();
        try {
            o.result = r.method.invoke(jni, args);
        } catch (InvocationTargetException e) {
            o.thrown = e.getCause();
        }
        return o;
    }

    static Integer codeOf(Throwable t) {
        if (t == null || !t.getClass().getName().equals("orvane.str.diskarray.DiskArrayException")) return null;
        try {
            return (Integer) t.getClass().getMethod("getCode").invoke(t);
        } catch (ReflectiveOperationException e) {
            throw new AssertionError(e);
        }
    }

    static String describe(Outcome o) {
        if (o.thrown == null) return "returned " + o.result;
        Integer c = codeOf(o.thrown);
        return c != null ? "threw code " + c : "threw " + o.thrown;
    }

    /** The value a failing call answers: null, or the int of the row. */
    static boolean failedResult(Row r, Object result) {
        Class<?> t = r.method.getReturnType();
        if (t == void.class) return true;
        if (t == int.class) return Integer.valueOf(r.failed).equals(result);
        return result == null;
    }

    /** Record objects reachable from a result: each was made by a writer that flushes first. */
    static int records(Object o, Set<String> quiet, Map<Object, Boolean> seen) throws IllegalAccessException {
        if (o == null || seen.put(o, true) != null) return 0;
        if (o instanceof Object[]) {
            int n = 0;
            for (Object e : (Object[]) o) n += records(e, quiet, seen);
            return n;
        }
        Field[] refs = REFERENCES.computeIfAbsent(o.getClass(), FrameTableTest::references);
        if (refs == null) return 0;
        int n = quiet.contains(o.getClass().getSimpleName()) ? 0 : 1;
        for (Field f : refs) n += records(f.get(o), quiet, seen);
        return n;
    }

    /** A record class's reference fields (null: not a record class), worked out once per class. */
    private static final Map<Class<?>, Field[]> REFERENCES = new java.util.HashMap<>();

    private static Field[] references(Class<?> c) {
        if (!c.getName().startsWith(RECORD_PACKAGE)) return null;
        Field[] refs = Arrays.stream(c.getFields())
            .filter(f -> !Modifier.isStatic(f.getModifiers()) && !f.getType().isPrimitive()).toArray(Field[]::new);
        for (Field f : refs) f.setAccessible(true);
        return refs;
    }

    // ------------------------------------------------------------ filled inputs

    static boolean isRecord(Class<?> c) {
        return c.getName().startsWith(RECORD_PACKAGE) && !Throwable.class.isAssignableFrom(c);
    }

    /** A value of type t with every field set to non-zero data (arrays at their constructed length, or 2). */
    static Object filled(Class<?> t, Object current) throws ReflectiveOperationException {
        return filled(t, current, 2, null);
    }

    /**
     * The same, primitive arrays a class leaves unmade made `tables` long, and
     * members of class `skip` left as the class makes them.
     */
    static Object filled(Class<?> t, Object current, int tables, String skip) throws ReflectiveOperationException {
        if (t == String.class) return "abc";
        if (t.isArray()) {
            Class<?> e = t.getComponentType();
            Object a = current != null ? current : Array.newInstance(e, e.isPrimitive() ? tables : 2);
            for (int i = 0; i < Array.getLength(a); i++) {
                if (e == int.class) Array.setInt(a, i, 0x05050505);
                else if (e == byte.class) Array.setByte(a, i, (byte) 7);
                else if (!e.isPrimitive()) Array.set(a, i, filled(e, Array.get(a, i), tables, skip));
            }
            return a;
        }
        if (!isRecord(t)) return current;
        Object o = current != null ? current : VariantTable.plain(t);
        if (o == null) return null;
        for (Field f : t.getFields()) {
            if (Modifier.isStatic(f.getModifiers())) continue;
            if (f.getType() == int.class) f.setInt(o, 0x05050505);
            else if (f.getType() == short.class) f.setShort(o, (short) 0x0505);
            else if (!f.getType().isPrimitive() && !f.getType().getName().equals(skip)) {
                f.set(o, filled(f.getType(), f.get(o), tables, skip));
            }
        }
        return o;
    }

    /** The bytes of every argument of the only call of fn (null for a null pointer). */
    static List<byte[]> handedOver(String fn) {
        List<byte[]> out = new ArrayList<>();
        if (FakePernix.calls(fn) != 1) return out;
        for (int i = 0; i < FakePernix.releaseStates(fn, 0).length; i++) out.add(FakePernix.arg(fn, 0, i));
        return out;
    }

    Outcome invokeWith(Row r, Object[] args) throws ReflectiveOperationException {
        Outcome o = new Outcome();
        try {
            o.result = r.method.invoke(jni, args);
        } catch (InvocationTargetException e) {
            o.thrown = e.getCause();
        }
        return o;
    }

    // ------------------------------------------------------------ checking

    /** Problems found, a line each; the test fails listing all of them. */
    final List<String> problems = new ArrayList<>();

    void check(Row r, String what, boolean ok, String detail) {
        if (!ok) problems.add(r + ": " + what + ": " + detail);
    }

    /** Faults and leaks of the run just made; resets the double. */
    void checkSeamAfter(Row r, String what) {
        problems.addAll(seamFaults(r + ": " + what));
    }

    void checkCalled(Row r, String what, boolean once) {
        List<String> log = Arrays.asList(FakePernix.log());
        List<String> expected = once ? List.of(r.name) : List.of();
        check(r, what, log.equals(expected), "library calls " + log);
    }

    /** Flushes on a path that fails, or that refuses before the library: entry only. */
    void checkFailingFlushes(Row r, String what, long before) {
        if (r.flush == 'X') return;
        long expected = r.flush == 'F' ? 1 : 0;
        long n = FakePernix.flushes() - before;
        check(r, what, n == expected, n + " flush(es) of stdout, " + expected + " expected");
    }

    void checkFlushBeforeCall(Row r, String what, long before) {
        if (r.flush == 'X' || FakePernix.calls(r.name) == 0) return;
        long expected = r.flush == 'F' ? 1 : 0;
        long n = FakePernix.flushesAtCall(r.name, 0) - before;
        check(r, what, n == expected, n + " flush(es) before the library call, " + expected + " expected");
    }

    /**
     * Against the plain call, a null that goes on changes one argument at most
     * (exactly one for a String, whose "u" is gone), into a null pointer or
     * all-zero bytes.
     */
    void checkNullGoesOnCleared(Row r, String what, int nullRef) throws ReflectiveOperationException {
        List<byte[]> sent = handedOver(r.name);
        checkSeamAfter(r, what);
        invoke(r, -1);
        List<byte[]> plain = handedOver(r.name);
        checkSeamAfter(r, "plain call");
        if (sent.size() != plain.size()) return;
        int changed = 0;
        for (int k = 0; k < sent.size(); k++) {
            if (Bytes.same(sent.get(k), plain.get(k))) continue;
            changed++;
            byte[] b = sent.get(k);
            check(r, what, Bytes.zero(b), "argument " + k + " reached the library holding data");
        }
        Class<?> type = Arrays.stream(r.method.getParameterTypes()).filter(c -> !c.isPrimitive())
            .skip(nullRef).findFirst().get();
        int expected = type == String.class ? 1 : changed;
        check(r, what, changed <= 1 && changed == expected, changed + " argument(s) changed by the null");
    }

    void done() {
        if (!problems.isEmpty()) fail(problems.size() + " problem(s):\n" + String.join("\n", problems));
    }

    @Test
    public void everyDeclaredNativeHasOneWellFormedRow() throws IOException {
        assertTrue(table().size() > 0);
    }

    @Test
    public void aSuccessfulCallReachesTheLibraryOnceWithClearedRecordsAndFlushesAsItsRowSays() throws Exception {
        long shim = FakePernix.flushes();
        assertTrue("the flush shim is not loaded (run_jvm.sh preloads libkxflush.so)", shim >= 0);
        for (Row r : table()) {
            FakePernix.reset();
            long before = FakePernix.flushes();
            Outcome o = invoke(r, -1);
            long after = FakePernix.flushes();
            checkFlushBeforeCall(r, "success", before);
            if (r.special) {
                checkSeamAfter(r, "success");
                continue;
            }
            check(r, "success", o.thrown == null, describe(o));
            checkCalled(r, "success", true);
            if (FakePernix.calls(r.name) == 1) {
                int[] rel = FakePernix.releaseStates(r.name, 0);
                for (int i = 0; i < rel.length; i++) {
                    byte[] b = FakePernix.arg(r.name, 0, i);
                    check(r, "argument " + i, !Bytes.holds(b, 0xA5), "reached the library holding bytes it was never given");
                    check(r, "argument " + i, rel[i] != FakePernix.LIVE, "block not released");
                }
                if (FakePernix.SEAM) {  // only the seam sees how a block was released
                    Set<Integer> wiped = FakePernix.wipedArgs(r.name, 0);
                    check(r, "secrets", wiped.equals(r.wipe), "arguments released wiped " + wiped + ", expected "
                          + r.wipe);
                }
                if (r.flush != 'X' && o.thrown == null) {
                    long writers = records(o.result, r.noflush, new IdentityHashMap<>());
                    long expected = writers + (r.flush == 'F' ? 1 : 0);
                    long n = after - FakePernix.flushesAtCall(r.name, 0);
                    check(r, "success", n == expected, n + " flush(es) after the library call, " + expected
                          + " expected (" + writers + " by record writers)");
                }
            }
            checkSeamAfter(r, "success");
            if (!r.wipe.isEmpty()) checkSecretsWipedWhole(r);
        }
        done();
    }

    /** Bytes for the library to store over a whole record (the largest is 1.3 MB). */
    static byte[] wholeRecord;

    /** Every byte a secret record held when the library filled it whole, and inputs filled with data. */
    void checkSecretsWipedWhole(Row r) throws ReflectiveOperationException {
        if (wholeRecord == null) {
            wholeRecord = new byte[2 << 20];
            Arrays.fill(wholeRecord, (byte) 0x5B);
        }
        byte[] data = wholeRecord;
        FakePernix.reset();
        for (int k = 0; k < 12; k++) FakePernix.willWrite(r.name, k, data);
        Object[] args = plainArgs(r.method);
        Class<?>[] types = r.method.getParameterTypes();
        for (int i = 0; i < types.length; i++) if (isRecord(types[i])) args[i] = filled(types[i], null);
        invokeWith(r, args);
        checkSeamAfter(r, "secrets filled whole");
    }

    /** Whether b is a prefix of `text` of `length` bytes, then zeros only. */
    static boolean holds(byte[] b, byte[] text, int length) {
        if (b == null || length > b.length || length > text.length) return false;
        for (int i = 0; i < b.length; i++) {
            if (b[i] != (i < length ? text[i] : 0)) return false;
        }
        return true;
    }

    /**
     * Called with distinct arguments (each String 1500 bytes of its own letter,
     * the session's id bytes 0x51.., each int 11 plus its position), the
     * library receives every int, in order; every String cut to its buffer (or
     * the row's limit) and the session record, in their order.
     */
    @Test
    public void stringsSessionAndIntsReachTheLibraryInTheirOrder() throws Exception {
        for (Row r : table()) {
            Class<?>[] types = r.method.getParameterTypes();
            Object[] args = plainArgs(r.method);
            List<byte[]> texts = new ArrayList<>();  // a String's bytes, or the session id
            List<Boolean> isText = new ArrayList<>();
            List<Integer> ints = new ArrayList<>();
            for (int i = 0; i < types.length; i++) {
                if (types[i] == int.class) {
                    args[i] = 11 + i;
                    ints.add(11 + i);
                } else if (types[i] == String.class) {
                    args[i] = repeat((char) ('A' + texts.size()), 1500);
                    texts.add(((String) args[i]).getBytes(java.nio.charset.StandardCharsets.UTF_8));
                    isText.add(true);
                } else if (types[i] == orvane.str.diskarray.KXSessionInfo.class) {
                    orvane.str.diskarray.KXSessionInfo s = new orvane.str.diskarray.KXSessionInfo();
                    for (int k = 0; k < s.session_id.length; k++) s.session_id[k] = (byte) (0x51 + k);
                    args[i] = s;
                    texts.add(s.session_id.clone());
                    isText.add(false);
                }
            }
            FakePernix.reset();
            invokeWith(r, args);
            String what = "distinct arguments";
            if (FakePernix.calls(r.name) != 1) {
                check(r, what, r.special, "library not called");
                checkSeamAfter(r, what);
                continue;
            }
            List<byte[]> sent = handedOver(r.name);
            List<Integer> sentInts = new ArrayList<>();
            for (int k = 0; k < sent.size(); k++) {
                if (sent.get(k) != null && sent.get(k).length == 0) sentInts.add(FakePernix.intArg(r.name, 0, k));
            }
            check(r, what, sentInts.equals(ints), "ints " + sentInts + " reached the library, " + ints + " expected");
            int from = 0;
            for (int t = 0; t < texts.size(); t++) {
                byte[] e = texts.get(t);
                int found = -1;
                for (int k = from; k < sent.size() && found < 0; k++) {
                    byte[] b = sent.get(k);
                    int length = !isText.get(t) ? e.length : r.limit > 0 ? r.limit - 1 : b == null ? 0 : b.length - 1;
                    if (length > 0 && holds(b, e, length)) found = k;
                }
                check(r, what, found >= 0, (isText.get(t) ? "String " + (char) e[0] : "session") + " not found after argument " + from);
                if (found >= 0) from = found + 1;
            }
            checkSeamAfter(r, what);
        }
        done();
    }

    @Test
    public void nullReferenceArgumentsAreHandledAsTheirRowSays() throws Exception {
        for (Row r : table()) {
            for (int i = 0; i < r.nulls.length(); i++) {
                char kind = r.nulls.charAt(i);
                if (kind == 'X') continue;
                String what = "null reference argument " + (i + 1) + " (" + kind + ")";
                FakePernix.reset();
                long before = FakePernix.flushes();
                Outcome o = invoke(r, i);
                Integer code = codeOf(o.thrown);
                switch (kind) {
                    case 'R':
                    case 'M':
                        int expected = kind == 'R' ? 258 : 2817;
                        check(r, what, Integer.valueOf(expected).equals(code), describe(o));
                        check(r, what, FakePernix.allocationCount() == 0 || kind == 'M',
                              FakePernix.allocationCount() + " allocation(s) before the refusal");
                        checkCalled(r, what, false);
                        checkFailingFlushes(r, what, before);
                        break;
                    case 'Q':
                        check(r, what, o.thrown == null && failedResult(r, o.result), describe(o));
                        checkCalled(r, what, false);
                        break;
                    case 'C':
                        if (!r.special) check(r, what, o.thrown == null, describe(o));
                        checkCalled(r, what, true);
                        checkFlushBeforeCall(r, what, before);
                        checkNullGoesOnCleared(r, what, i);
                        break;
                    default:
                        break;
                }
                checkSeamAfter(r, what);
            }
        }
        done();
    }

    @Test
    public void aReaderStopsAtANullNestedMemberLeavingTheRestOfItsRecordClear() throws Exception {
        for (Row r : table()) {
            if (r.special) continue;
            Class<?>[] types = r.method.getParameterTypes();
            for (int p = 0; p < types.length; p++) {
                if (!isRecord(types[p])) continue;
                for (Field f : types[p].getFields()) {
                    Class<?> ft = f.getType();
                    if (Modifier.isStatic(f.getModifiers()) || !(ft.isArray() || isRecord(ft))) continue;
                    String what = "input " + types[p].getSimpleName() + " with " + f.getName() + " null";
                    Object[] args = plainArgs(r.method);
                    FakePernix.reset();
                    args[p] = filled(types[p], null);
                    invokeWith(r, args);
                    List<byte[]> full = handedOver(r.name);
                    checkSeamAfter(r, what);
                    Object cut = filled(types[p], null);
                    f.set(cut, null);
                    args[p] = cut;
                    invokeWith(r, args);
                    List<byte[]> sent = handedOver(r.name);
                    check(r, what, sent.size() == full.size() && !full.isEmpty(), "library not called alike");
                    for (int i = 0; i < Math.min(full.size(), sent.size()); i++) {
                        byte[] a = full.get(i);
                        byte[] b = sent.get(i);
                        if (a == null || b == null || a.length != b.length) continue;
                        int o = Bytes.mismatch(a, b);
                        int rest = o < 0 ? -1 : Bytes.find(b, o, 0, true);
                        check(r, what + ", argument " + i, rest < 0,
                              "bytes written after the null member (first difference at " + o
                              + ", non-zero again at " + rest + ")");
                    }
                    checkSeamAfter(r, what);
                    // The int, short or String declared last before the null member is still read.
                    Field g = null;
                    for (Field h : types[p].getFields()) {
                        if (h.equals(f)) break;
                        Class<?> ht = h.getType();
                        if (!Modifier.isStatic(h.getModifiers()) && (ht == int.class || ht == short.class || ht == String.class)) g = h;
                    }
                    if (g != null) {
                        Class<?> gt = g.getType();
                        Object changed = filled(types[p], null);
                        f.set(changed, null);
                        if (gt == int.class) g.setInt(changed, 0x06060606);
                        else if (gt == short.class) g.setShort(changed, (short) 0x0606);
                        else g.set(changed, "bbc");
                        args[p] = changed;
                        invokeWith(r, args);
                        List<byte[]> again = handedOver(r.name);
                        boolean differs = again.size() != sent.size();
                        for (int i = 0; !differs && i < sent.size(); i++) differs = !Arrays.equals(again.get(i), sent.get(i));
                        check(r, what, differs, g.getName() + ", declared before it, was not read");
                        checkSeamAfter(r, what);
                    }
                }
            }
        }
        done();
    }

    @Test
    public void eachAllocationFailingInTurnIsReportedAsOutOfMemoryWithNothingLeaked() throws Exception {
        for (Row r : table()) {
            if (r.special) continue;
            FakePernix.reset();
            invoke(r, -1);
            int n = FakePernix.allocationCount();
            for (int k = 1; k <= n; k++) {
                String what = "allocation " + k + " of " + n + " failing";
                FakePernix.reset();
                FakePernix.failAllocation(k);
                long before = FakePernix.flushes();
                Outcome o = invoke(r, -1);
                boolean oom = o.thrown instanceof ClassNotFoundException
                              && "java/lang/OutofMemoryError".equals(o.thrown.getMessage());
                check(r, what, oom, describe(o));
                checkCalled(r, what, false);
                checkFailingFlushes(r, what, before);
                checkSeamAfter(r, what);
            }
        }
        done();
    }

    @Test
    public void theLibrarysCodeIsThrownUnchangedAnd256AnswersQuietly() throws Exception {
        for (Row r : table()) {
            if (r.special) continue;
            for (int rc : new int[] {LIBRARY_CODE, 256}) {
                String what = "library result " + rc;
                FakePernix.reset();
                FakePernix.willReturn(r.name, rc);
                // Outputs the library stores before it fails are not answered.
                for (int k = 0; k < 12; k++) FakePernix.willWrite(r.name, k, new byte[] {7, 0, 0, 0});
                long before = FakePernix.flushes();
                Outcome o = invoke(r, -1);
                if (rc == 256) check(r, what, o.thrown == null && failedResult(r, o.result), describe(o));
                else check(r, what, Integer.valueOf(rc).equals(codeOf(o.thrown)), describe(o));
                checkCalled(r, what, true);
                checkFailingFlushes(r, what, before);
                checkSeamAfter(r, what);
            }
        }
        done();
    }
}
