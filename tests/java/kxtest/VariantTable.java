package kxtest;

import static org.junit.Assert.fail;

import java.lang.reflect.Array;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.IdentityHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.TreeSet;
import orvane.str.diskarray.DiskArrayUtilityJNI;
import org.junit.Test;

/**
 * What each native answers against a variant's fixture classes, from the
 * variant's expect.tsv (a line per native: {@code KX_Name outcome}):
 * <ul>
 * <li>a number: DiskArrayException with that code;
 * <li>{@code null}: null, nothing thrown;
 * <li>{@code full}: a result with no null element or member anywhere;
 * <li>{@code partial}: a result, some elements possibly null;
 * <li>the simple name of a Throwable class: that is thrown (the JVM's own error).
 * </ul>
 * Each native is called once with the plain arguments of the frame table and
 * must reach the library exactly once, releasing every block.  Every native
 * whose result type holds a class the variant replaces must have a line.  A
 * variant's test extends this class and names its folder.
 */
public abstract class VariantTable extends BridgeTest {
    private final String variant;

    protected VariantTable(String variant) {
        this.variant = variant;
    }

    static boolean hasNull(Object o, Map<Object, Boolean> seen) throws IllegalAccessException {
        if (o == null) return true;
        if (seen.put(o, true) != null) return false;
        Class<?> c = o.getClass();
        if (c.isArray()) {
            if (c.getComponentType().isPrimitive()) return false;
            for (int i = 0; i < Array.getLength(o); i++) if (hasNull(Array.get(o, i), seen)) return true;
            return false;
        }
        if (!FrameTableTest.isRecord(c)) return false;
        for (java.lang.reflect.Field f : c.getFields()) {
            if (!Modifier.isStatic(f.getModifiers()) && !f.getType().isPrimitive() && hasNull(f.get(o), seen)) return true;
        }
        return false;
    }

    /** Whether o is the outcome of an expect.tsv line (see above). */
    static boolean answers(String expected, FrameTableTest.Outcome o) throws IllegalAccessException {
        Integer code = FrameTableTest.codeOf(o.thrown);
        if (expected.matches("-?\\d+")) return Integer.valueOf(expected).equals(code);
        if (expected.equals("null")) return o.thrown == null && o.result == null;
        if (expected.equals("partial")) return o.thrown == null && o.result != null;
        if (expected.equals("full")) return o.thrown == null && !hasNull(o.result, new IdentityHashMap<>());
        return o.thrown != null && o.thrown.getClass().getSimpleName().equals(expected);
    }

    /** The lines of a variant's expect.tsv, each split into its words (native, outcome), comments left out. */
    static List<String[]> expectations(String variant) throws java.io.IOException {
        List<String[]> out = new ArrayList<>();
        Path file = Paths.get(System.getProperty("kx.tests", "tests")).resolve("java").resolve("variants")
            .resolve(variant).resolve("expect.tsv");
        for (String line : Files.readAllLines(file)) {
            String[] t = line.replaceAll("#.*", "").trim().split("\\s+");
            if (!t[0].isEmpty()) out.add(t);
        }
        return out;
    }

    /** The natives of DiskArrayUtilityJNI by name. */
    static Map<String, Method> natives() {
        Map<String, Method> natives = new TreeMap<>();
        for (Method m : DiskArrayUtilityJNI.class.getDeclaredMethods()) {
            if (Modifier.isNative(m.getModifiers())) natives.put(m.getName(), m);
        }
        return natives;
    }

    static Object plain(Class<?> t) {
        try {
            if (t.isPrimitive()) return Array.get(Array.newInstance(t, 1), 0);
            if (t == String.class) return "u";
            if (t.isArray()) return Array.newInstance(t.getComponentType(), t.getComponentType().isPrimitive() ? 65536 : 0);
            return t.getConstructor().newInstance();
        } catch (ReflectiveOperationException | LinkageError e) {
            return null;  // a class of the variant that cannot be made
        }
    }

    /** Classes of the variant reachable from type t through its fields' declared types. */
    static void reachable(Class<?> t, Set<Class<?>> seen, Set<String> out) {
        while (t.isArray()) t = t.getComponentType();
        if (!FrameTableTest.isRecord(t) || !seen.add(t)) return;
        java.security.CodeSource src = t.getProtectionDomain().getCodeSource();
        // The variant's classes are compiled into a folder of their own, variant-<name>.
        if (src != null && src.getLocation().getPath().contains("/variant-")) out.add(t.getSimpleName());
        for (java.lang.reflect.Field f : t.getFields()) {
            if (!Modifier.isStatic(f.getModifiers())) reachable(f.getType(), seen, out);
        }
    }

    @Test
    public void everyNativeWhoseResultHoldsAClassOfTheVariantHasALine() throws Exception {
        Set<String> listed = new TreeSet<>();
        for (String[] t : expectations(variant)) listed.add(t[0]);
        List<String> missing = new ArrayList<>();
        for (Method m : DiskArrayUtilityJNI.class.getDeclaredMethods()) {
            if (!Modifier.isNative(m.getModifiers()) || listed.contains(m.getName())) continue;
            Set<String> classes = new TreeSet<>();
            reachable(m.getReturnType(), new java.util.HashSet<>(), classes);
            if (!classes.isEmpty()) missing.add(m.getName() + " builds " + classes);
        }
        if (!missing.isEmpty()) fail("natives without a line:\n" + String.join("\n", missing));
    }

    @Test
    public void eachNativeAnswersAsTheVariantExpects() throws Exception {
        Map<String, Method> natives = natives();
        List<String> problems = new ArrayList<>();
        for (String[] t : expectations(variant)) {
            Method m = natives.get(t[0]);
            if (m == null || t.length < 2) {
                problems.add("bad line: " + String.join(" ", t));
                continue;
            }
            Object[] args = new Object[m.getParameterCount()];
            for (int i = 0; i < args.length; i++) args[i] = plain(m.getParameterTypes()[i]);
            FakePernix.reset();
            FrameTableTest.Outcome o = new FrameTableTest.Outcome();
            try {
                o.result = m.invoke(jni, args);
            } catch (InvocationTargetException e) {
                o.thrown = e.getCause();
            }
            if (!answers(t[1], o)) problems.add(t[0] + ": expected " + t[1] + ", " + FrameTableTest.describe(o));
            if (FakePernix.calls(t[0]) != 1) problems.add(t[0] + ": library called " + FakePernix.calls(t[0]) + " time(s)");
            problems.addAll(AbsentFieldTest.seamFaults(t[0]));
        }
        if (!problems.isEmpty()) fail(problems.size() + " problem(s):\n" + String.join("\n", problems));
    }
}
