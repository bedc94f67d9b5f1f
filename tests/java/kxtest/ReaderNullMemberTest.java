package kxtest;

import static org.junit.Assert.fail;

import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import java.util.zip.CRC32;
import org.junit.Test;

/**
 * A reader given an object whose nested object or array is null somewhere
 * inside the record stops there: the record that holds the null member is
 * read up to it and left clear from it on, and everything around that record
 * is read as usual (the walk over an array goes on with the next element, the
 * record holding a nested one goes on with its next field).  Checked for every
 * member reached through nested records and the first element of arrays of
 * the record arguments of the frame table's natives (each member once, where
 * it is first reached), against the same object whose holding record has
 * every field from the member on set to zero.  Top-level members of the rows
 * that are not special are the frame table's own check, and a request's
 * performance snapshot is not a member that stops it.  Where the cleared
 * object itself cannot be read (an array the class leaves unmade, made here
 * shorter than the record's table), there is nothing to compare with.
 */
public class ReaderNullMemberTest extends BridgeTest {
    /** Where a member sits: the fields and array indexes that lead to it from the argument. */
    static final class Path {
        final List<Object> steps = new ArrayList<>();  // Field or Integer (element 0)

        Path then(Object step) {
            Path p = new Path();
            p.steps.addAll(steps);
            p.steps.add(step);
            return p;
        }

        int depth() {
            int n = 0;
            for (Object s : steps) if (s instanceof Field) n++;
            return n;
        }

        public String toString() {
            StringBuilder b = new StringBuilder();
            for (Object s : steps) b.append(s instanceof Field ? "." + ((Field) s).getName() : "[0]");
            return b.toString();
        }
    }

    static boolean member(Field f) {
        Class<?> t = f.getType();
        return !Modifier.isStatic(f.getModifiers()) && (t.isArray() || FrameTableTest.isRecord(t));
    }

    /** Every object or array member of record class c, through nested records and the first element of arrays. */
    static void members(Class<?> c, Path at, List<Path> out, List<Class<?>> open) {
        if (!FrameTableTest.isRecord(c) || open.contains(c)) return;
        open.add(c);
        for (Field f : c.getFields()) {
            if (!member(f) || f.getType().getName().equals(SNAPSHOT)) continue;
            Path p = at.then(f);
            out.add(p);
            Class<?> t = f.getType();
            Path inner = p;
            while (t.isArray()) {
                t = t.getComponentType();
                inner = inner.then(0);
            }
            members(t, inner, out, open);
        }
        open.remove(c);
    }

    /** The object holding the path's last field; null when there is none. */
    static Object holder(Object root, Path p) throws IllegalAccessException {
        Object o = root;
        for (Object s : p.steps.subList(0, p.steps.size() - 1)) {
            if (o == null || (s instanceof Integer && Array.getLength(o) == 0)) return null;
            o = s instanceof Field ? ((Field) s).get(o) : Array.get(o, (Integer) s);
        }
        return o;
    }

    /**
     * A performance snapshot is read into a buffer the native allocates and
     * points the request to; a request without one goes on with its next field.
     * Snapshots are left as the class makes them (none), and their members out:
     * four snapshots of 1.5 MB a request are too slow to read again for every
     * member in the emulated legs.
     */
    static final String SNAPSHOT = FrameTableTest.RECORD_PACKAGE + "PerformanceAll";

    /** Primitive arrays a class leaves unmade get this many elements: at least any table a record holds. */
    static final int TABLE = 4096;

    /**
     * A value of type t filled as the frame table fills one, but primitive
     * arrays a class leaves unmade made as long as any table a record holds.
     */
    static Object filled(Class<?> t, Object current) throws ReflectiveOperationException {
        return FrameTableTest.filled(t, current, TABLE, SNAPSHOT);
    }

    /** A new value shaped as v (same classes, array lengths and members) with every number 0 and every String "". */
    static Object zeroCopy(Object v) throws ReflectiveOperationException {
        if (v == null) return null;
        if (v instanceof String) return "";
        Class<?> c = v.getClass();
        if (c.isArray()) {
            int n = Array.getLength(v);
            Object a = Array.newInstance(c.getComponentType(), n);
            if (!c.getComponentType().isPrimitive()) for (int i = 0; i < n; i++) Array.set(a, i, zeroCopy(Array.get(v, i)));
            return a;
        }
        if (!FrameTableTest.isRecord(c)) return v;
        Object o = c.getConstructor().newInstance();
        for (Field f : c.getFields()) {
            if (!Modifier.isStatic(f.getModifiers()) && !f.getType().isPrimitive()) f.set(o, zeroCopy(f.get(v)));
        }
        return o;
    }

    /** Arguments (by index) of the last call whose records hold pointers to buffers of the call. */
    final Set<Integer> linking = new HashSet<>();

    /** The bytes of every argument of the only call of fn, then of the buffers pointers inside them lead to. */
    List<byte[]> handedOver(String fn) {
        List<byte[]> out = FrameTableTest.handedOver(fn);
        linking.clear();
        for (int i = 0, n = out.size(); i < n; i++) {
            for (int k = 0;; k++) {
                try {
                    out.add(FakePernix.pointee(fn, 0, i, k));
                    linking.add(i);
                } catch (IllegalArgumentException e) {
                    break;
                }
            }
        }
        return out;
    }

    /** Bytes of a pointer in the bridge's records. */
    static final int POINTER = "32".equals(System.getProperty("sun.arch.data.model")) ? 4 : 8;

    /**
     * The first byte where b differs from a, -1 when none.  In a record that
     * holds pointers, aligned words that are set in both are the addresses of
     * that call's buffers and are left out.
     */
    static int firstDifference(byte[] a, byte[] b, boolean pointers) {
        if (a == null || b == null || a.length != b.length) return a == b ? -1 : 0;
        if (crc(a) == crc(b)) return -1;  // native, where a byte loop is slow in the emulated legs
        int from = 0;
        while (true) {
            int d = Arrays.mismatch(a, from, a.length, b, from, b.length);
            if (d < 0) return -1;
            int at = from + d;
            int w = at - at % POINTER;
            int end = w + POINTER;
            if (!pointers || end > a.length) return at;
            boolean setA = false;
            boolean setB = false;
            for (int i = w; i < end; i++) {
                setA |= a[i] != 0;
                setB |= b[i] != 0;
            }
            if (!(setA && setB)) return at;
            from = end;
        }
    }

    static long crc(byte[] a) {
        CRC32 c = new CRC32();
        c.update(a, 0, a.length);
        return c.getValue();
    }

    /** Whether the last call raised the JVM's own error (not a DiskArrayException). */
    boolean jvmError;

    /** The bytes the library got for the argument record, or null when it was not called once. */
    List<byte[]> call(FrameTableTest.Row r, Object[] args, int p, Object arg, List<String> problems, String what)
        throws ReflectiveOperationException {
        Object[] a = args.clone();
        a[p] = arg;
        FakePernix.reset();
        jvmError = false;
        try {
            r.method.invoke(jni, a);
        } catch (java.lang.reflect.InvocationTargetException e) {
            jvmError = FrameTableTest.codeOf(e.getCause()) == null;
        }
        List<byte[]> sent = handedOver(r.name);
        problems.addAll(seamFaults(r + ": " + what));
        return sent.isEmpty() ? null : sent;  // the double's calls are reset by now
    }

    /**
     * What the library gets when the holder's fields from the member on are
     * zero instead (Strings left as they are when `keepTexts`); the holder is
     * put back afterwards.
     */
    List<byte[]> cleared(FrameTableTest.Row r, Object[] args, int p, Object full, Object holder, List<Field> rest,
                         Object[] kept, boolean keepTexts, List<String> problems, String what)
        throws ReflectiveOperationException {
        for (int k = 0; k < kept.length; k++) {
            Field g = rest.get(k);
            if (g.getType() == int.class) g.setInt(holder, 0);
            else if (g.getType() == short.class) g.setShort(holder, (short) 0);
            else if (!g.getType().isPrimitive() && !(keepTexts && g.getType() == String.class)) {
                g.set(holder, zeroCopy(kept[k]));
            }
        }
        try {
            return call(r, args, p, full, problems, what + " (cleared instead)");
        } finally {
            for (int k = 0; k < kept.length; k++) rest.get(k).set(holder, kept[k]);
        }
    }

    /** How sent differs from expected, null when it does not. */
    String mismatch(List<byte[]> expected, List<byte[]> sent, Set<Integer> pointers) {
        if (sent == null && expected == null) return null;
        if (sent == null || expected == null || sent.size() != expected.size()) return "library not called alike";
        for (int i = 0; i < sent.size(); i++) {
            int o = firstDifference(expected.get(i), sent.get(i), pointers.contains(i) || linking.contains(i));
            if (o >= 0) return "argument " + i + " differs from the record cleared from that member on, first at byte " + o;
        }
        return null;
    }

    @Test
    public void aReaderStopsAtANullMemberAnywhereInsideItsRecord() throws Exception {
        List<String> problems = new ArrayList<>();
        int checked = 0;
        Set<Field> done = new HashSet<>();
        for (FrameTableTest.Row r : FrameTableTest.table()) {
            Class<?>[] types = r.method.getParameterTypes();
            Object[] args = FrameTableTest.plainArgs(r.method);
            for (int p = 0, ref = -1; p < types.length; p++) {
                if (!types[p].isPrimitive()) ref++;
                if (!FrameTableTest.isRecord(types[p])) continue;
                char kind = ref < r.nulls.length() ? r.nulls.charAt(ref) : 'X';
                List<Path> paths = new ArrayList<>();
                members(types[p], new Path(), paths, new ArrayList<>());
                Object full = null;  // made once a member is left to check
                for (Path path : paths) {
                    if (path.depth() == 1 && !r.special) continue;
                    String what = types[p].getSimpleName() + path + " null";
                    Field f = (Field) path.steps.get(path.steps.size() - 1);
                    if (!done.add(f)) continue;
                    if (full == null) full = filled(types[p], null);
                    Object holder = holder(full, path);
                    if (holder == null) continue;
                    // The holder's fields from the member on, kept to be put back.
                    List<Field> rest = new ArrayList<>();
                    for (Field g : holder.getClass().getFields()) {
                        if (g.equals(f) || !rest.isEmpty()) {
                            if (!Modifier.isStatic(g.getModifiers())) rest.add(g);
                        }
                    }
                    Object[] kept = new Object[rest.size()];
                    for (int k = 0; k < kept.length; k++) kept[k] = rest.get(k).get(holder);

                    f.set(holder, null);
                    List<byte[]> sent = call(r, args, p, full, problems, what);
                    Set<Integer> pointers = new HashSet<>(linking);
                    List<byte[]> expected = cleared(r, args, p, full, holder, rest, kept, false, problems, what);
                    if (jvmError) continue;
                    checked++;
                    if (kind == 'M') {  // the record must convert whole: nothing reaches the library
                        if (sent != null) problems.add(r + ": " + what + ": the library was called");
                        continue;
                    }
                    String wrong = mismatch(expected, sent, pointers);
                    // A request may read a text of its own first (a file name kept outside the record).
                    if (wrong != null) {
                        List<byte[]> textsKept = cleared(r, args, p, full, holder, rest, kept, true, problems, what);
                        if (!jvmError && mismatch(textsKept, sent, pointers) == null) wrong = null;
                    }
                    if (wrong != null) problems.add(r + ": " + what + ": " + wrong);
                }
            }
        }
        if (checked < 50) problems.add("only " + checked + " nested member(s) checked");
        if (!problems.isEmpty()) fail(problems.size() + " problem(s):\n" + String.join("\n", problems));
    }
}
