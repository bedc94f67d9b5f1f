package kxbench;

import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.IdentityHashMap;
import java.util.List;
import java.util.Map;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

/**
 * A hand-written JNI floor for trees too large to list field by field: the
 * layout is read from the Java classes by reflection (public instance fields
 * in declaration order, each taking its C width in turn: int 4 bytes, short a
 * 8-byte double rate, int[] / int[][] / byte[] their lengths times their width,
 * a record its own size, arrays of records their elements one after another),
 * array lengths from a tree the native built, and the reserved bytes some C
 * records hold after their last field named by the case.  Where the Java type
 * does not tell the C field (a String's width, an int held in one byte), the
 * case names the field in a hint: "z17" text of 17 bytes, "s" a signed byte,
 * "u" an unsigned byte, each optionally followed by "+3": reserved bytes after
 * the field.  The probe library
 * (HandJni.planned) then looks every class, constructor and field of the plan
 * up once per call and converts the bytes the way the hand-written floors do.
 * A plan that does not match the C layout builds a different tree, which the
 * benchmark refuses before it measures anything.
 */
final class Planned {
    static final int INT = 0, INTS = 1, INTS2 = 2, RECORD = 3, RECORDS = 4, RECORDS2 = 5, RATE = 6, BYTES = 7,
        TEXT = 8, SBYTE = 9, UBYTE = 10, SKIP = 11;

    /** One class's plan: its C size and, per field, the op (kind, count, columns, element plan), name, signature. */
    private static final class Plan {
        final String path;
        int size;
        final List<int[]> ops = new ArrayList<>();
        final List<String> names = new ArrayList<>();
        final List<String> sigs = new ArrayList<>();

        Plan(String path) {
            this.path = path;
        }
    }

    private static final Pattern HINT = Pattern.compile("([zsu])(\\d*)(?:\\+(\\d+))?");

    private final List<Plan> plans = new ArrayList<>();
    private final Map<Class<?>, Integer> index = new IdentityHashMap<>();

    /**
     * Flat form handed to the probe: {String[] classes, int[] code, String[] names, String[] sigs}, where code
     * holds per plan its size and field count, then per field kind, count, columns and element plan (-1: none);
     * names and sigs hold every plan's fields in the same order.  Plan 0 is the root.
     */
    final Object[] flat;

    /** Bytes a C record holds after its described fields (reserved tails), by simple class name. */
    private final Map<String, Integer> tails;
    /** C fields the Java type does not tell, by "SimpleClass.field" (see the class comment). */
    private final Map<String, String> hints;

    Planned(Object sample, Map<String, Integer> tails, Map<String, String> hints) {
        this.tails = tails;
        this.hints = hints;
        plan(sample);
        List<String> classes = new ArrayList<>();
        List<Integer> code = new ArrayList<>();
        List<String> names = new ArrayList<>();
        List<String> sigs = new ArrayList<>();
        for (Plan p : plans) {
            classes.add(p.path);
            code.add(p.size);
            code.add(p.ops.size());
            for (int[] op : p.ops) for (int x : op) code.add(x);
            names.addAll(p.names);
            sigs.addAll(p.sigs);
        }
        int[] c = new int[code.size()];
        for (int i = 0; i < c.length; i++) c[i] = code.get(i);
        flat = new Object[] {classes.toArray(new String[0]), c, names.toArray(new String[0]),
            sigs.toArray(new String[0])};
    }

    static String path(Class<?> cls) {
        return cls.getName().replace('.', '/');
    }

    private static String sig(Class<?> t) {
        if (t == int.class) return "I";
        if (t == short.class) return "S";
        if (t == byte.class) return "B";
        if (t == String.class) return "Ljava/lang/String;";
        if (t.isArray()) return "[" + sig(t.getComponentType());
        return "L" + path(t) + ";";
    }

    /** The plan of sample's class (array lengths from sample the first time); its index. */
    private int plan(Object sample) {
        Class<?> cls = sample.getClass();
        Integer known = index.get(cls);
        if (known != null) return known;
        int me = plans.size();
        index.put(cls, me);
        Plan p = new Plan(path(cls));
        plans.add(p);
        try {
            for (Field f : cls.getDeclaredFields()) {
                if (Modifier.isStatic(f.getModifiers()) || !Modifier.isPublic(f.getModifiers())) continue;
                Class<?> t = f.getType();
                Object v = f.get(sample);
                int[] op;
                String hint = hints.get(cls.getSimpleName() + "." + f.getName());
                if (hint != null) {
                    Matcher m = HINT.matcher(hint);
                    if (!m.matches()) throw new IllegalArgumentException("bad hint " + hint);
                    int width = m.group(2).isEmpty() ? 1 : Integer.parseInt(m.group(2));
                    char k = m.group(1).charAt(0);
                    op = new int[] {k == 'z' ? TEXT : k == 's' ? SBYTE : UBYTE, width, 0, -1};
                    p.size += width;
                    p.ops.add(op);
                    p.names.add(f.getName());
                    p.sigs.add(sig(t));
                    if (m.group(3) != null) {
                        int skip = Integer.parseInt(m.group(3));
                        p.ops.add(new int[] {SKIP, skip, 0, -1});
                        p.names.add("");
                        p.sigs.add("");
                        p.size += skip;
                    }
                    continue;
                }
                if (t == String.class) throw new IllegalArgumentException(f + ": a String needs a width hint");
                if (t == int.class) {
                    op = new int[] {INT, 1, 0, -1};
                    p.size += 4;
                } else if (t == short.class) {
                    op = new int[] {RATE, 1, 0, -1};
                    p.size += 8;
                } else if (t == int[].class) {
                    op = new int[] {INTS, Array.getLength(v), 0, -1};
                    p.size += 4 * op[1];
                } else if (t == byte[].class) {
                    op = new int[] {BYTES, Array.getLength(v), 0, -1};
                    p.size += op[1];
                } else if (t == int[][].class) {
                    int rows = Array.getLength(v);
                    op = new int[] {INTS2, rows, Array.getLength(Array.get(v, 0)), -1};
                    p.size += 4 * rows * op[2];
                } else if (t.isArray() && t.getComponentType().isArray()) {
                    int rows = Array.getLength(v);
                    Object row = Array.get(v, 0);
                    int e = plan(Array.get(row, 0));
                    op = new int[] {RECORDS2, rows, Array.getLength(row), e};
                    p.size += rows * op[2] * plans.get(e).size;
                } else if (t.isArray()) {
                    int e = plan(Array.get(v, 0));
                    op = new int[] {RECORDS, Array.getLength(v), 0, e};
                    p.size += op[1] * plans.get(e).size;
                } else {
                    int e = plan(v);
                    op = new int[] {RECORD, 1, 0, e};
                    p.size += plans.get(e).size;
                }
                p.ops.add(op);
                p.names.add(f.getName());
                p.sigs.add(sig(t));
            }
        } catch (IllegalAccessException e) {
            throw new AssertionError(e);
        }
        p.size += tails.getOrDefault(cls.getSimpleName(), 0);
        return me;
    }
}
