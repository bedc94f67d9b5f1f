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
}
