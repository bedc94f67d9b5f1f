package kxtest;

import static org.junit.Assert.assertTrue;
import static org.junit.Assert.fail;

import java.util.ArrayList;
import java.util.List;
import java.util.Map;
import org.junit.Test;

/**
 * The record catalogue the hostile-input tests build from agrees with the Java
 * classes: every described class and field exists, with a type its kind can
 * convert.  A stale or misread catalogue would make those tests pass while
 * aiming beside the tables.
 */
public class CatalogueTest {
    @Test
    public void everyDescribedFieldIsAFieldOfItsClassOfTheKindsType() throws Exception {
        Catalogue c = Catalogue.get();
        assertTrue("the catalogue lists " + c.size() + " classes", c.size() > 250);
        List<String> problems = new ArrayList<>();
        for (String cls : c.classes()) {
            Class<?> k;
            try {
                k = Class.forName(FrameTableTest.RECORD_PACKAGE + cls);
            } catch (ClassNotFoundException e) {
                problems.add(cls + ": no such class");
                continue;
            }
            for (Map.Entry<String, Catalogue.Field> e : c.of(cls).entrySet()) {
                Catalogue.Field f = e.getValue();
                if (f.kind.equals("custom")) continue;  // its own converters decide, if it has any
                Class<?> t;
                try {
                    t = k.getField(f.name).getType();
                } catch (NoSuchFieldException x) {
                    problems.add(cls + "." + f.name + ": no such field");
                    continue;
                }
                String want;
                switch (f.kind) {
                    case "int": case "sbyte": case "ubyte": want = "int"; break;
                    case "string": case "unicode": want = "java.lang.String"; break;
                    case "bytes": want = "[B"; break;
                    case "bytetable": case "ints": want = "[I"; break;
                    case "ints2": want = "[[I"; break;
                    case "record": want = FrameTableTest.RECORD_PACKAGE + f.elem; break;
                    case "records": want = "[L" + FrameTableTest.RECORD_PACKAGE + f.elem + ";"; break;
                    case "records2": want = "[[L" + FrameTableTest.RECORD_PACKAGE + f.elem + ";"; break;
                    default: want = "?"; break;
                }
                if (!t.getName().equals(want)) problems.add(cls + "." + f.name + ": " + t.getName() + ", its kind " + f.kind);
                if (f.count <= 0) problems.add(cls + "." + f.name + ": count " + f.count);
            }
        }
        if (!problems.isEmpty()) fail(problems.size() + " problem(s):\n" + String.join("\n", problems));
    }

    /**
     * The hostile runs' result check sees what it is there for: a string one
     * character over its field and a table one element short, both inside an
     * element of a nested table; the same tree at the tables' sizes passes.
     */
    @Test
    public void theResultCheckFindsAStringOverItsFieldAndATableOffItsSize() throws Exception {
        Catalogue c = Catalogue.get();
        for (String cls : c.classes()) {
            for (Catalogue.Field table : c.of(cls).values()) {
                if (!table.kind.equals("records") || table.count < 2 || c.of(table.elem) == null) continue;
                Catalogue.Field text = c.of(table.elem).values().stream()
                    .filter(f -> f.kind.equals("string")).findFirst().orElse(null);
                if (text == null) continue;
                Class<?> outer = Class.forName(FrameTableTest.RECORD_PACKAGE + cls);
                Class<?> elem = Class.forName(FrameTableTest.RECORD_PACKAGE + table.elem);
                Object o = outer.getConstructor().newInstance();
                Object[] rows = (Object[]) java.lang.reflect.Array.newInstance(elem, table.count);
                Object e = elem.getConstructor().newInstance();
                rows[0] = e;
                outer.getField(table.name).set(o, rows);
                elem.getField(text.name).set(e, "x".repeat(text.count));
                HostileInputs check = new HostileInputs(0);
                List<String> found = new ArrayList<>();
                check.check(o, found);
                assertTrue(found.toString(), found.stream().noneMatch(f -> f.contains("." + text.name)));
                elem.getField(text.name).set(e, "x".repeat(text.count + 1));
                outer.getField(table.name).set(o, java.util.Arrays.copyOf(rows, table.count - 1));
                found.clear();
                check.check(o, found);
                String at = "result." + table.name;
                assertTrue(found.toString(), found.contains(at + "[]." + text.name + " holds " + (text.count + 1)
                                                             + " characters, its field " + text.count + " bytes"));
                assertTrue(found.toString(), found.contains(at + " holds " + (table.count - 1) + " elements, its table "
                                                             + table.count));
                return;
            }
        }
        fail("no record with a table of records that hold a string");
    }
}
