package kxtest;

import static org.junit.Assert.fail;

import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import java.util.function.UnaryOperator;
import org.junit.Test;

/**
 * Tables a reader cannot copy whole, for every table field of every record
 * argument of every native of the frame table (the first one the reader
 * meets reshaped, the arguments otherwise filled with data):
 * <ul>
 * <li>a table of rows (int[][] or byte[][]) whose first row is null fails
 *     the record that holds it as a null table does: that record is read up
 *     to the table and no further, the records around it go on;
 * <li>a first row shorter than a row of the C table leaves the JVM's
 *     exception pending, which stops the reader at that field as a missing
 *     field does (kxtest.Absent): the library gets everything read before it
 *     and nothing from it on;
 * <li>an empty int[] either stops the reader so (a table of ints) or reads
 *     as an empty list (a byte list, one byte per int): zeros, and the reader
 *     goes on.
 * Either way the library is not called when an argument that must convert
 * whole fails.
 * </ul>
 */
public class ShortTableTest extends BridgeTest {
    /** Sets the first value of field f that a reader of v meets to shape(value); whether there was one. */
    static boolean reshape(Object v, Field f, UnaryOperator<Object> shape) throws IllegalAccessException {
        if (v == null || v instanceof String) return false;
        Class<?> c = v.getClass();
        if (c.isArray()) {
            if (c.getComponentType().isPrimitive()) return false;
            for (int i = 0; i < Array.getLength(v); i++) if (reshape(Array.get(v, i), f, shape)) return true;
            return false;
        }
        if (!FrameTableTest.isRecord(c)) return false;
        for (Field g : AbsentFieldTest.fields(c)) {
            if (g.equals(f)) {
                g.set(v, shape.apply(g.get(v)));
                return true;
            }
            if (!g.getType().isPrimitive() && reshape(g.get(v), f, shape)) return true;
        }
        return false;
    }

    /** A copy of a table of rows with its first row replaced. */
    static UnaryOperator<Object> firstRow(Object row) {
        return t -> {
            Object[] rows = ((Object[]) t).clone();
            rows[0] = row;
            return rows;
        };
    }

    /** Arguments of r: plain, every record argument filled with data, the first f met reshaped. */
    static Object[] args(FrameTableTest.Row r, Field f, UnaryOperator<Object> shape) throws ReflectiveOperationException {
        Object[] args = RefusedCallTest.args(r);
        if (f != null) {
            for (Object a : args) if (reshape(a, f, shape)) break;
        }
        return args;
    }

    /**
     * The bytes the library got in r's only call with args, field `absent`
     * (when not null) missing from its class; null when it was not called once.
     */
    List<byte[]> sent(FrameTableTest.Row r, Object[] args, Field absent, List<String> problems, String what)
        throws IllegalAccessException {
        FakePernix.reset();
        if (absent != null) Absent.field(absent.getDeclaringClass(), absent.getName());
        try {
            r.method.invoke(jni, args);
        } catch (java.lang.reflect.InvocationTargetException e) {
            // what the native threw is not looked at: only what the library got
        } finally {
            if (absent != null) Absent.none();
        }
        List<byte[]> out = FakePernix.calls(r.name) == 1 ? FrameTableTest.handedOver(r.name) : null;
        problems.addAll(seamFaults(r + ": " + what));
        return out;
    }

    /** Where the bytes the library got differ: null when they do not. */
    static String difference(List<byte[]> got, List<byte[]> want) {
        if (got == null || want == null) return got == want ? null : got == null ? "no call" : "a call";
        for (int i = 0; i < want.size(); i++) {
            int at = ReaderNullMemberTest.firstDifference(want.get(i), i < got.size() ? got.get(i) : null, true);
            if (at >= 0) {
                byte[] g = i < got.size() ? got.get(i) : null;
                return "argument " + i + " from byte " + at + " (" + (g == null ? "none" : Integer.toHexString(g[at] & 0xFF))
                    + ", not " + Integer.toHexString(want.get(i)[at] & 0xFF) + ")";
            }
        }
        return null;
    }

    @Test
    public void aTableThatCannotBeCopiedWholeStopsTheReaderThere() throws Exception {
        List<String> problems = new ArrayList<>();
        Set<String> done = new HashSet<>();
        int checked = 0;
        for (FrameTableTest.Row r : FrameTableTest.table()) {
            Class<?>[] types = r.method.getParameterTypes();
            Object[] args = args(r, null, null);
            List<Field> met = new ArrayList<>();
            Set<Field> seen = new HashSet<>();
            for (int p = 0; p < types.length; p++) {
                if (FrameTableTest.isRecord(types[p]) && args[p] != null) AbsentFieldTest.order(args[p], met, seen);
            }
            for (Field f : met) {
                List<String> shapes = new ArrayList<>();
                if (f.getType() == int[][].class || f.getType() == byte[][].class) {
                    shapes.add("first row null");
                    shapes.add("first row empty");
                } else if (f.getType() == int[].class) {
                    shapes.add("empty");
                }
                for (String shapeName : shapes) {
                    // Each field and shape once, in the first native that reads it.
                    if (!done.add(AbsentFieldTest.name(f) + " " + shapeName)) continue;
                    UnaryOperator<Object> shape = shapeName.equals("first row null") ? firstRow(null)
                        : shapeName.equals("first row empty")
                            ? firstRow(Array.newInstance(f.getType().getComponentType().getComponentType(), 0))
                            : t -> new int[0];
                    String what = AbsentFieldTest.name(f) + " " + shapeName;
                    List<byte[]> got = sent(r, args(r, f, shape), null, problems, what);
                    List<byte[]> want = shapeName.equals("first row null")
                        ? sent(r, args(r, f, t -> null), null, problems, what + " (a null table instead)")
                        : sent(r, args(r, null, null), f, problems, what + " (the field missing instead)");
                    String diff = difference(got, want);
                    if (diff != null && shapeName.equals("empty")) {
                        // A byte list read as empty: zeros where it stands, the rest read.
                        List<byte[]> zeros = sent(r, args(r, f, t -> new int[((int[]) t).length]), null, problems,
                                                  what + " (zeros)");
                        if (difference(got, zeros) == null) diff = null;
                    }
                    checked++;
                    if (diff != null) {
                        problems.add(r + ": " + what + ": the library got other bytes than "
                                     + (shapeName.equals("first row null") ? "with a null table"
                                        : shapeName.equals("empty") ? "with the field missing or zeros"
                                        : "with the field missing") + ": " + diff);
                    }
                }
            }
        }
        if (checked < 30) problems.add("only " + checked + " table shape(s) checked");
        if (!problems.isEmpty()) fail(problems.size() + " problem(s):\n" + String.join("\n", problems));
    }
}
