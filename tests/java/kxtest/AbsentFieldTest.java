package kxtest;

import static org.junit.Assert.fail;

import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import org.junit.Test;

/**
 * Each field of a record class missing in turn (kxtest.Absent), as in a class
 * compiled without it, for every native of the frame table:
 * <ul>
 * <li>a result object is dropped (2817) when the missing field, or any field
 *     the writer sets after it (they all fail once one has), is one whose
 *     failure drops the object; otherwise it comes back with the JVM's
 *     NoSuchFieldError.  A String's failure does not drop it, any other
 *     field's does, but for those listed in UNCHECKED;
 * <li>a reader stops at the missing field: the library gets everything read
 *     before it, in the order of the classes' fields, and nothing from it on
 *     (not even from the record arguments after it); an argument that must
 *     convert whole keeps the library from being called.
 * </ul>
 * A field inside a nested record of a result cannot be told apart this way:
 * whether it drops its own object or not, the field holding that object fails.
 */
public class AbsentFieldTest extends BridgeTest {
    /** Fields other than Strings whose failure leaves the object to the caller, with the JVM's error. */
    static final Set<String> UNCHECKED = new HashSet<>(Arrays.asList(
        "KXSessionInfo.session_id"));
    /** Natives that return what their writer made, dropped or not, as it is: nothing to tell apart. */
    static final Set<String> AS_MADE = new HashSet<>(Arrays.asList("KX_GetTurboLU", "KX_LogicalUnitFormatStatusList"));

    /** Fields read before the rest of the argument that holds them (a file name the native opens first). */
    static final Set<String> FIRST = new HashSet<>(Arrays.asList(
        "PerformanceOutputInfo.filename", "PerformanceOutputInfoEx.filename"));

    static String name(Field f) {
        return f.getDeclaringClass().getSimpleName() + "." + f.getName();
    }

    static boolean drops(Field f) {
        return f.getType() != String.class && !UNCHECKED.contains(name(f));
    }

    static List<Field> fields(Class<?> c) {
        List<Field> out = new ArrayList<>();
        for (Field f : c.getFields()) if (!Modifier.isStatic(f.getModifiers())) out.add(f);
        return out;
    }

    /** What invoking r with args did: "full", "2817" (or another code), or the simple name of what the JVM threw. */
    String outcome(FrameTableTest.Row r, Object[] args) throws IllegalAccessException {
        try {
            r.method.invoke(jni, args);
            return "full";
        } catch (InvocationTargetException e) {
            Integer code = FrameTableTest.codeOf(e.getCause());
            return code != null ? String.valueOf(code) : e.getCause().getClass().getSimpleName();
        }
    }

    @Test
    public void aResultIsDroppedOrLeftToTheCallerAsItsMissingFieldSays() throws Exception {
        List<String> problems = new ArrayList<>();
        Set<Class<?>> done = new HashSet<>();
        int checked = 0;
        for (FrameTableTest.Row r : FrameTableTest.table()) {
            Class<?> c = r.method.getReturnType();
            if (!FrameTableTest.isRecord(c) || AS_MADE.contains(r.name) || !done.add(c)) continue;
            // Each field missing in turn; those the writer never looks up are not its fields.
            List<Field> set = new ArrayList<>();
            List<String> got = new ArrayList<>();
            for (Field f : fields(c)) {
                FakePernix.reset();
                String outcome;
                int lookups;
                Absent.field(c, f.getName());
                try {
                    outcome = outcome(r, FrameTableTest.plainArgs(r.method));
                } finally {
                    lookups = Absent.none();
                }
                problems.addAll(seamFaults(r + ": " + c.getSimpleName() + "." + f.getName() + " missing"));
                if (lookups == 0) continue;
                set.add(f);
                got.add(outcome);
            }
            // Once a field fails, every later one fails too: the first of them that drops the object decides.
            for (int i = 0; i < set.size(); i++) {
                checked++;
                boolean dropped = false;
                for (Field g : set.subList(i, set.size())) dropped |= drops(g);
                String want = dropped ? "2817" : "NoSuchFieldError";
                if (!got.get(i).equals(want)) {
                    problems.add(r + ": " + c.getSimpleName() + "." + set.get(i).getName() + " missing: " + got.get(i)
                                 + ", not " + want);
                }
            }
        }
        if (checked < 350) problems.add("only " + checked + " result field(s) checked");
        if (!problems.isEmpty()) fail(problems.size() + " problem(s):\n" + String.join("\n", problems));
    }

    // ------------------------------------------------------------ readers

    /** Every (class, field) of the record values, in the order a reader meets them first. */
    static void order(Object v, List<Field> out, Set<Field> seen) throws IllegalAccessException {
        if (v == null || v instanceof String) return;
        Class<?> c = v.getClass();
        if (c.isArray()) {
            if (!c.getComponentType().isPrimitive()) {
                for (int i = 0; i < Array.getLength(v); i++) order(Array.get(v, i), out, seen);
            }
            return;
        }
        if (!FrameTableTest.isRecord(c)) return;
        for (Field f : fields(c)) {
            if (seen.add(f)) out.add(f);
            if (!f.getType().isPrimitive()) order(f.get(v), out, seen);
        }
    }

    static boolean reaches(Object v, Field f) throws IllegalAccessException {
        List<Field> met = new ArrayList<>();
        order(v, met, new HashSet<>());
        return met.contains(f);
    }

    /**
     * A copy of v as a reader that stops at `stop` leaves it: every field met
     * from the first `stop` on (stopped[0] set there) is zero, "" or a zeroed
     * copy.
     */
    static Object cut(Object v, Field stop, boolean[] stopped) throws ReflectiveOperationException {
        if (v == null || v instanceof String) return stopped[0] && v != null ? "" : v;
        Class<?> c = v.getClass();
        if (c.isArray()) {
            int n = Array.getLength(v);
            Object a = Array.newInstance(c.getComponentType(), n);
            if (!c.getComponentType().isPrimitive()) {
                for (int i = 0; i < n; i++) Array.set(a, i, cut(Array.get(v, i), stop, stopped));
            } else if (!stopped[0]) {
                System.arraycopy(v, 0, a, 0, n);
            }
            return a;
        }
        if (!FrameTableTest.isRecord(c)) return v;
        Object o = c.getConstructor().newInstance();
        for (Field f : fields(c)) {
            if (f.equals(stop)) stopped[0] = true;
            if (f.getType().isPrimitive()) {
                if (!stopped[0]) f.set(o, f.get(v));
                else if (f.getType() == int.class) f.setInt(o, 0);
                else if (f.getType() == short.class) f.setShort(o, (short) 0);
                else if (f.getType() == byte.class) f.setByte(o, (byte) 0);
            } else {
                f.set(o, cut(f.get(v), stop, stopped));
            }
        }
        return o;
    }

    /** The bytes the library got in r's only call with args (null when it was not called once); faults into problems. */
    List<byte[]> sent(FrameTableTest.Row r, Object[] args, Field absent, List<String> problems, String what)
        throws ReflectiveOperationException {
        FakePernix.reset();
        if (absent != null) Absent.field(absent.getDeclaringClass(), absent.getName());
        String got;
        try {
            got = outcome(r, args);
        } finally {
            if (absent != null) Absent.none();
        }
        if (absent != null && got.equals("full")) problems.add(r + ": " + what + ": nothing thrown");
        List<byte[]> out = FakePernix.calls(r.name) == 1 ? FrameTableTest.handedOver(r.name) : null;
        problems.addAll(seamFaults(r + ": " + what));
        return out;
    }

    @Test
    public void aReaderStopsAtAMissingFieldAndReadsInTheOrderOfItsClass() throws Exception {
        List<String> problems = new ArrayList<>();
        Set<Field> done = new HashSet<>();
        int checked = 0;
        for (FrameTableTest.Row r : FrameTableTest.table()) {
            Class<?>[] types = r.method.getParameterTypes();
            Object[] args = FrameTableTest.plainArgs(r.method);
            List<Integer> records = new ArrayList<>();
            for (int p = 0; p < types.length; p++) {
                if (!FrameTableTest.isRecord(types[p]) || args[p] == null) continue;
                args[p] = ReaderNullMemberTest.filled(types[p], null);
                records.add(p);
            }
            // Which record arguments must convert whole (M in the row).
            Set<Integer> whole = new HashSet<>();
            for (int p = 0, ref = -1; p < types.length; p++) {
                if (!types[p].isPrimitive()) ref++;
                if (ref >= 0 && ref < r.nulls.length() && r.nulls.charAt(ref) == 'M') whole.add(p);
            }
            List<Field> met = new ArrayList<>();
            Set<Field> seen = new HashSet<>();
            for (int p : records) order(args[p], met, seen);
            for (Field f : met) {
                if (!done.add(f)) continue;
                String what = name(f) + " missing";
                List<byte[]> got = sent(r, args, f, problems, what);
                Object[] cutArgs = args.clone();
                boolean[] stopped = {false};
                int stopAt = types.length;  // the argument whose reading stops
                for (int p : records) {
                    if (FIRST.contains(name(f)) && reaches(args[p], f)) stopped[0] = true;
                    cutArgs[p] = cut(args[p], f, stopped);
                    if (stopped[0]) stopAt = Math.min(stopAt, p);
                }
                final int from = stopAt;
                boolean toWhole = whole.stream().anyMatch(q -> q >= from);
                checked++;
                if (toWhole) {
                    if (got != null) problems.add(r + ": " + what + ": the library was called");
                    continue;
                }
                List<byte[]> want = sent(r, cutArgs, null, problems, what + " (cut instead)");
                String wrong = want == null ? "no call with the cut arguments" : got == null ? "library not called" : null;
                for (int i = 0; wrong == null && i < want.size(); i++) {
                    if (i >= got.size()) wrong = "argument " + i + " missing";
                    else if (ReaderNullMemberTest.firstDifference(want.get(i), got.get(i), true) >= 0) {
                        wrong = "argument " + i + " differs from the arguments cut at that field, first at byte "
                            + ReaderNullMemberTest.firstDifference(want.get(i), got.get(i), true);
                    }
                }
                if (wrong != null) problems.add(r + ": " + what + ": " + wrong);
            }
        }
        if (checked < 600) problems.add("only " + checked + " input field(s) checked");
        if (!problems.isEmpty()) fail(problems.size() + " problem(s):\n" + String.join("\n", problems));
    }
}
