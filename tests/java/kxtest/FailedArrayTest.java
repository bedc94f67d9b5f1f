package kxtest;

import static org.junit.Assert.fail;

import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.nio.file.Files;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.IdentityHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.TreeSet;
import orvane.str.diskarray.DiskArrayUtilityJNI;
import org.junit.Test;

/**
 * The JVM failing to create any array of the record classes a native builds
 * (kxtest.Absent): each native answers as when those classes cannot be found
 * (the missing-classes variant's expect.tsv), with the JVM's OutOfMemoryError
 * where that variant has its lookup error, and nothing leaks.  A native that
 * makes no such array answers as usual.
 */
public class FailedArrayTest extends BridgeTest {
    static void classes(Class<?> t, Set<Class<?>> out) {
        while (t.isArray()) t = t.getComponentType();
        if (!FrameTableTest.isRecord(t) || !out.add(t)) return;
        for (java.lang.reflect.Field f : t.getFields()) {
            if (!Modifier.isStatic(f.getModifiers())) classes(f.getType(), out);
        }
    }

    @Test
    public void eachNativeAnswersAFailedArrayAsAClassItCannotFind() throws Exception {
        Map<String, Method> natives = new TreeMap<>();
        for (Method m : DiskArrayUtilityJNI.class.getDeclaredMethods()) {
            if (Modifier.isNative(m.getModifiers())) natives.put(m.getName(), m);
        }
        List<String> problems = new ArrayList<>();
        for (String line : Files.readAllLines(Paths.get(System.getProperty("kx.tests", "tests"))
                 .resolve("java/variants/missing-classes/expect.tsv"))) {
            String[] t = line.replaceAll("#.*", "").trim().split("\\s+");
            if (t[0].isEmpty()) continue;
            Method m = natives.get(t[0]);
            String expected = t[1].equals("ClassNotFoundException") ? "OutOfMemoryError" : t[1];
            Set<Class<?>> records = new HashSet<>();
            classes(m.getReturnType(), records);
            if (m.getReturnType() == Object[].class) {
                for (Class<?> c : new Class<?>[] {orvane.str.diskarray.RaidGroup.class, orvane.str.diskarray.LogicalUnit.class,
                                                   orvane.str.diskarray.LuMappingHGInfo.class}) classes(c, records);
            }
            Set<Class<?>> refused = new HashSet<>(records);
            for (Class<?> c : records) refused.add(java.lang.reflect.Array.newInstance(c, 0).getClass());
            Object[] args = FrameTableTest.plainArgs(m);
            FakePernix.reset();
            FrameTableTest.Outcome o = new FrameTableTest.Outcome();
            int refusals;
            Absent.arrays(refused.toArray(new Class<?>[0]));
            try {
                o.result = m.invoke(jni, args);
            } catch (InvocationTargetException e) {
                o.thrown = e.getCause();
            } finally {
                refusals = Absent.none();
            }
            // A native that makes none of those arrays (its records only nested ones) is not concerned.
            if (refusals == 0) expected = "partial";
            Integer code = FrameTableTest.codeOf(o.thrown);
            boolean ok;
            if (expected.matches("-?\\d+")) ok = Integer.valueOf(expected).equals(code);
            else if (expected.equals("null")) ok = o.thrown == null && o.result == null;
            else if (expected.equals("partial")) ok = o.thrown == null;
            else if (expected.equals("full")) ok = o.thrown == null && !VariantTable.hasNull(o.result, new IdentityHashMap<>());
            else ok = o.thrown != null && o.thrown.getClass().getSimpleName().equals(expected);
            if (!ok) problems.add(t[0] + ": expected " + expected + ", " + FrameTableTest.describe(o) + " (" + refusals + " refused)");
            problems.addAll(AbsentFieldTest.seamFaults(t[0]));
        }
        if (!problems.isEmpty()) fail(problems.size() + " problem(s):\n" + String.join("\n", problems));
    }
}
