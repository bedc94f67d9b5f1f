package kxtest;

import static org.junit.Assert.fail;

import java.lang.reflect.Array;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.LinkedHashSet;
import java.util.List;
import java.util.Map;
import java.util.Set;
import org.junit.Test;

/**
 * The JVM failing to create the arrays of one record class at a time
 * (kxtest.Absent), for each class a native builds: the native answers as when
 * the classes of its arrays cannot be found (the missing-classes variant's
 * expect.tsv), with the JVM's OutOfMemoryError where that variant has its
 * lookup error, and nothing leaks.  A class the native makes no array of
 * changes nothing.  Each class is tried once, and in every native its own
 * array and at least one array inside its result: a native answers every
 * array inside alike.
 */
public class FailedArrayTest extends BridgeTest {
    /** Object[] results: the classes of their elements. */
    static final Class<?>[] ELEMENTS = {orvane.str.diskarray.RaidGroup.class, orvane.str.diskarray.LogicalUnit.class,
                                        orvane.str.diskarray.LuMappingHGInfo.class};

    /** The record classes of arrays reachable from type t (t itself when it is one), into `arrays`. */
    static void arrays(Class<?> t, Set<Class<?>> seen, Set<Class<?>> arrays) {
        boolean array = t.isArray();
        while (t.isArray()) t = t.getComponentType();
        if (!FrameTableTest.isRecord(t)) return;
        if (array) arrays.add(t);
        if (!seen.add(t)) return;
        for (java.lang.reflect.Field f : t.getFields()) {
            if (!Modifier.isStatic(f.getModifiers())) arrays(f.getType(), seen, arrays);
        }
    }

    @Test
    public void eachNativeAnswersAnArrayItCannotHaveAsAClassItCannotFind() throws Exception {
        Map<String, Method> natives = VariantTable.natives();
        List<String> problems = new ArrayList<>();
        int refused = 0;
        Set<Class<?>> done = new HashSet<>();  // classes tried in an earlier native
        for (String[] t : VariantTable.expectations("missing-classes")) {
            Method m = natives.get(t[0]);
            Set<Class<?>> records = new LinkedHashSet<>();
            Set<Class<?>> seen = new HashSet<>();
            arrays(m.getReturnType(), seen, records);
            if (m.getReturnType() == Object[].class) for (Class<?> c : ELEMENTS) arrays(c.arrayType(), seen, records);
            boolean inner = false;  // an array inside the result tried
            for (Class<?> c : records) {
                boolean own = m.getReturnType().isArray() && c == m.getReturnType().getComponentType();
                if (!own && inner && !done.add(c)) continue;
                inner |= !own;
                done.add(c);
                // Arrays of the class, and of arrays of it (a table of rows).
                Class<?>[] arrays = {c, Array.newInstance(c, 0).getClass()};
                FakePernix.reset();
                FrameTableTest.Outcome o = new FrameTableTest.Outcome();
                int refusals;
                Absent.arrays(arrays);
                try {
                    o.result = m.invoke(jni, FrameTableTest.plainArgs(m));
                } catch (InvocationTargetException e) {
                    o.thrown = e.getCause();
                } finally {
                    refusals = Absent.none();
                }
                String expected = refusals == 0 ? "no exception"
                                  : t[1].equals("ClassNotFoundException") ? "OutOfMemoryError" : t[1];
                if (refusals == 0 ? o.thrown != null : !VariantTable.answers(expected, o)) {
                    problems.add(t[0] + " without arrays of " + c.getSimpleName() + ": expected " + expected + ", "
                                 + FrameTableTest.describe(o));
                }
                problems.addAll(seamFaults(t[0] + " without arrays of " + c.getSimpleName()));
                if (refusals > 0) refused++;
            }
        }
        if (refused < 40) problems.add("only " + refused + " array class(es) refused");
        if (!problems.isEmpty()) fail(problems.size() + " problem(s):\n" + String.join("\n", problems));
    }
}
