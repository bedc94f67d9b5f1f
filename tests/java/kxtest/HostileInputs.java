package kxtest;

import java.io.ByteArrayOutputStream;
import java.io.DataOutputStream;
import java.io.IOException;
import java.lang.reflect.Array;
import java.lang.reflect.Constructor;
import java.lang.reflect.Field;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.util.HashMap;
import java.util.IdentityHashMap;
import java.util.List;
import java.util.Map;
import java.util.Random;

/**
 * Java arguments nobody would write by hand, for any native, from a seed:
 * arrays of length 0, short, exact and longer than their table; null elements
 * and elements of a subclass; extreme ints; strings longer than every limit,
 * with non-ASCII characters and embedded NULs.  Capacities and string limits
 * come from the record catalogue, so "exact" and "one over" are the walker's
 * own.  Also checks results against the catalogue: every described array at
 * its table's capacity, no string longer than its C field.
 */
public final class HostileInputs {
    static final int[] INTS = {0, 1, -1, 2, 127, 128, 255, 256, -128, -129, 65535, 65536, -65536,
                               Integer.MAX_VALUE, Integer.MIN_VALUE, Integer.MAX_VALUE - 1, Integer.MIN_VALUE + 1,
                               0x7f7f7f7f, 0x80808080, 0xFFFF0000};
    /** Characters of 1, 2, 3 and 6 bytes in modified UTF-8, NUL (2 bytes), a lone surrogate. */
    static final String[] PIECES = {"a", "Z", "0", " ", "%", "\u00e9", "\u00ff", "\u20ac", "\u65e5", "\ud83d\ude00",
                                    "\u0000", "\ud800", "\udfff", "\uffff", "\u007f", "\u0080"};
    static final int DEPTH = 4;
    static final String RECORD_PACKAGE = "orvane.str.diskarray.";

    /** A record class: one of the application's, not its exception. */
    public static boolean isRecord(Class<?> c) {
        return c.getName().startsWith(RECORD_PACKAGE) && !Throwable.class.isAssignableFrom(c);
    }

    final Random r;
    final Catalogue catalogue = Catalogue.get();

    public HostileInputs(long seed) {
        r = new Random(seed);
    }

    /** Arguments for m: every parameter hostile; a String or record parameter null now and then. */
    public Object[] args(Method m) throws ReflectiveOperationException {
        Class<?>[] types = m.getParameterTypes();
        Object[] args = new Object[types.length];
        for (int i = 0; i < types.length; i++) args[i] = value(types[i], null, 0, 0);
        tame(m, args);
        return args;
    }

    /**
     * Natives whose result is as many records as their int argument asks for:
     * a count that a machine can just about allocate (gigabytes of records,
     * millions of Java objects) is the caller's own folly, slow rather than
     * wrong, and is asked as 65,536 instead; counts of 256 GB and more, which no
     * allocation meets, stay.
     */
    static final Map<String, Integer> ARGUMENT_SIZED = Map.of("KX_GetUnitParamTable", 256);

    public static void tame(Method m, Object[] args) {
        Integer record = ARGUMENT_SIZED.get(m.getName());
        if (record == null) return;
        for (int i = 0; i < args.length; i++) {
            if (args[i] instanceof Integer) {
                long bytes = (long) (Integer) args[i] * record;
                if ((Integer) args[i] > 65536 && bytes < (1L << 38)) args[i] = 65536;
            }
        }
    }

    /** A hostile value of type t; f (may be null) is the described field it fills. */
    Object value(Class<?> t, Catalogue.Field f, int depth, int columns) throws ReflectiveOperationException {
        if (t == int.class) return anInt();
        if (t == short.class) return (short) anInt();
        if (t == byte.class) return (byte) anInt();
        if (t == long.class) return (long) anInt() << r.nextInt(33);
        if (t == boolean.class) return r.nextBoolean();
        if (t.isPrimitive()) return Array.get(Array.newInstance(t, 1), 0);
        if (r.nextInt(16) == 0) return null;
        if (t == String.class) return string(f != null && f.isString() ? f.count : 1 + r.nextInt(300));
        if (t.isArray()) {
            Class<?> e = t.getComponentType();
            int capacity = f == null ? 0 : f.count;
            if (f != null && columns > 0) capacity = columns;
            int n = f == null && e.isPrimitive() ? parameterLength() : length(capacity, 8);
            Object a = Array.newInstance(e, n);
            // The rows of a two-level table are as hostile as the table itself.
            int inner = f != null && (f.kind.equals("ints2") || f.kind.equals("records2")) && columns == 0 ? f.columns : 0;
            for (int i = 0; i < n; i++) {
                if (e == int.class) Array.setInt(a, i, anInt());
                else if (e == byte.class) Array.setByte(a, i, (byte) r.nextInt(256));
                else if (e == short.class) Array.setShort(a, i, (short) anInt());
                else if (!e.isPrimitive()) {
                    Catalogue.Field ef = f;
                    if (e.isArray() && inner > 0) Array.set(a, i, value(e, ef, depth + 1, inner));
                    else Array.set(a, i, depth >= DEPTH ? null : value(e, null, depth + 1, 0));
                }
            }
            return a;
        }
        if (!isRecord(t)) return null;
        return record(t, depth);
    }

    /** A record of class t (or of a subclass of it), every field hostile. */
    Object record(Class<?> t, int depth) throws ReflectiveOperationException {
        Object o = make(r.nextInt(4) == 0 ? Subclasses.of(t) : t);
        if (o == null) return null;
        Map<String, Catalogue.Field> described = catalogue.of(t);
        // Now and then a record left as its constructor made it, fields and all.
        if (r.nextInt(8) == 0) return o;
        for (Field jf : t.getFields()) {
            if (Modifier.isStatic(jf.getModifiers()) || Modifier.isFinal(jf.getModifiers())) continue;
            Catalogue.Field f = described == null ? null : described.get(jf.getName());
            Class<?> ft = jf.getType();
            if (depth >= DEPTH && !ft.isPrimitive()) {
                jf.set(o, null);
                continue;
            }
            jf.set(o, value(ft, f, depth + 1, 0));
        }
        return o;
    }

    static Object make(Class<?> t) {
        try {
            Constructor<?> c = t.getConstructor();
            return c.newInstance();
        } catch (ReflectiveOperationException | LinkageError e) {
            return null;
        }
    }

    int anInt() {
        return r.nextInt(3) == 0 ? r.nextInt() : INTS[r.nextInt(INTS.length)];
    }

    /** 0, 1, short of the capacity, exact, one over, far over (a table without a known capacity: anything up to max). */
    int length(int capacity, int max) {
        if (capacity <= 0) {
            int[] some = {0, 1, 2, 7, 64, max};
            return some[r.nextInt(some.length)];
        }
        switch (r.nextInt(6)) {
            case 0: return 0;
            case 1: return Math.min(1, capacity);
            case 2: return capacity / 2;
            case 3: return capacity;
            case 4: return capacity + 1;
            default: return capacity + 1 + r.nextInt(Math.min(capacity, 64) + 1);
        }
    }

    /** A primitive array parameter: its table is the native's own, often 64 KiB. */
    int parameterLength() {
        int[] some = {0, 1, 7, 4096, 65535, 65536, 65537, 70000};
        return some[r.nextInt(some.length)];
    }

    /** A string around the limit (a C field of `limit` bytes) and far beyond it, of mixed characters. */
    String string(int limit) {
        int[] lengths = {0, 1, limit - 1, limit, limit + 1, limit + 7, 2 * limit + 5, 5000};
        int n = Math.max(0, lengths[r.nextInt(lengths.length)]);
        boolean ascii = r.nextInt(3) == 0;
        StringBuilder s = new StringBuilder(n + 2);
        while (s.length() < n) {
            s.append(ascii ? PIECES[r.nextInt(5)] : PIECES[r.nextInt(PIECES.length)]);
        }
        return s.toString();
    }

    // ------------------------------------------------------------ results

    /**
     * Problems of a result: a described array not at its table's capacity, a
     * string longer than its C field (in characters: every byte of the field
     * gives at most one).
     */
    public void check(Object o, String path, List<String> problems, Map<Object, Boolean> seen)
            throws IllegalAccessException {
        if (o == null || seen.put(o, true) != null) return;
        Class<?> c = o.getClass();
        if (c.isArray()) {
            if (c.getComponentType().isPrimitive()) return;
            for (int i = 0; i < Array.getLength(o); i++) check(Array.get(o, i), path + "[]", problems, seen);
            return;
        }
        if (!isRecord(c)) return;
        Map<String, Catalogue.Field> described = catalogue.of(c);
        for (Field jf : c.getFields()) {
            if (Modifier.isStatic(jf.getModifiers()) || jf.getType().isPrimitive()) continue;
            Object v = jf.get(o);
            String at = path + "." + jf.getName();
            Catalogue.Field f = described == null ? null : described.get(jf.getName());
            if (v != null && f != null) {
                if (f.isString() && v instanceof String && ((String) v).length() > f.count) {
                    problems.add(at + " holds " + ((String) v).length() + " characters, its field " + f.count + " bytes");
                }
                switch (f.kind) {
                    case "ints": case "bytetable": case "records":
                        if (Array.getLength(v) != f.count) {
                            problems.add(at + " holds " + Array.getLength(v) + " elements, its table " + f.count);
                        }
                        break;
                    case "ints2": case "records2":
                        if (Array.getLength(v) != f.count) {
                            problems.add(at + " holds " + Array.getLength(v) + " rows, its table " + f.count);
                        }
                        for (int i = 0; i < Array.getLength(v); i++) {
                            Object row = Array.get(v, i);
                            if (row != null && Array.getLength(row) != f.columns) {
                                problems.add(at + "[" + i + "] holds " + Array.getLength(row) + " elements, its table "
                                             + f.columns);
                            }
                        }
                        break;
                    default:
                        break;
                }
            }
            check(v, at, problems, seen);
        }
    }

    public void check(Object result, List<String> problems) throws IllegalAccessException {
        check(result, "result", problems, new IdentityHashMap<>());
    }

    // ------------------------------------------------------------ subclasses

    /**
     * A subclass of each record class that adds nothing, made at run time (a
     * class file with one constructor calling its parent's), so that elements
     * of a subclass reach the bridge wherever a record does.
     */
    static final class Subclasses extends ClassLoader {
        private static final Map<Class<?>, Class<?>> MADE = new HashMap<>();

        private Subclasses(ClassLoader parent) {
            super(parent);
        }

        static synchronized Class<?> of(Class<?> t) {
            if (Modifier.isFinal(t.getModifiers()) || !Modifier.isPublic(t.getModifiers())) return t;
            return MADE.computeIfAbsent(t, k -> {
                String name = "kxhostile.Sub" + k.getSimpleName();
                byte[] b = classFile(name.replace('.', '/'), k.getName().replace('.', '/'));
                return new Subclasses(k.getClassLoader()).defineClass(name, b, 0, b.length);
            });
        }

        static byte[] classFile(String name, String parent) {
            try {
                ByteArrayOutputStream bytes = new ByteArrayOutputStream();
                DataOutputStream d = new DataOutputStream(bytes);
                d.writeInt(0xCAFEBABE);
                d.writeShort(0);
                d.writeShort(52);
                d.writeShort(10);  // constant pool: 9 entries
                d.writeByte(1); d.writeUTF(name);         // 1
                d.writeByte(7); d.writeShort(1);          // 2 this class
                d.writeByte(1); d.writeUTF(parent);       // 3
                d.writeByte(7); d.writeShort(3);          // 4 parent class
                d.writeByte(1); d.writeUTF("<init>");     // 5
                d.writeByte(1); d.writeUTF("()V");        // 6
                d.writeByte(12); d.writeShort(5); d.writeShort(6);  // 7 name and type
                d.writeByte(10); d.writeShort(4); d.writeShort(7);  // 8 parent's constructor
                d.writeByte(1); d.writeUTF("Code");       // 9
                d.writeShort(0x21);  // public, super
                d.writeShort(2);
                d.writeShort(4);
                d.writeShort(0);  // interfaces
                d.writeShort(0);  // fields
                d.writeShort(1);  // methods: public <init>()V { super(); }
                d.writeShort(0x01);
                d.writeShort(5);
                d.writeShort(6);
                d.writeShort(1);
                d.writeShort(9);
                d.writeInt(17);
                d.writeShort(1);  // max stack
                d.writeShort(1);  // max locals
                d.writeInt(5);
                d.write(new byte[] {0x2a, (byte) 0xb7, 0x00, 0x08, (byte) 0xb1});  // aload_0 invokespecial #8 return
                d.writeShort(0);  // exception table
                d.writeShort(0);  // code attributes
                d.writeShort(0);  // class attributes
                return bytes.toByteArray();
            } catch (IOException e) {
                throw new AssertionError(e);
            }
        }
    }
}
