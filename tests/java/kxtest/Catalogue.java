package kxtest;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.HashMap;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;

/**
 * Every record description of the bridge, a field each, as the build prints
 * them (tests/catalogue): the capacities, string fields and nested classes the
 * walker itself uses.  Read from the file kx.catalogue names (default
 * build/host/catalogue.txt).
 */
public final class Catalogue {
    /** One field of a description. */
    public static final class Field {
        public final String name;
        public final String kind;   // int sbyte ubyte string unicode bytes bytetable ints ints2 record records records2 custom
        public final int count;     // bytes of a string or byte table, elements of an array, rows
        public final int columns;   // two-level arrays: elements per row
        public final String elem;   // nested records' class (simple name), or null

        Field(String[] t) {
            name = t[1];
            kind = t[2];
            count = Integer.parseInt(t[3]);
            columns = Integer.parseInt(t[4]);
            elem = t[5].equals("-") ? null : t[5];
        }

        public boolean isString() {
            return kind.equals("string") || kind.equals("unicode");
        }
    }

    private final Map<String, Map<String, Field>> classes = new HashMap<>();

    private Catalogue(List<String> lines) {
        for (String line : lines) {
            if (line.isBlank()) continue;
            String[] t = line.trim().split(" ");
            if (t.length != 6) throw new IllegalArgumentException("catalogue: malformed line: " + line);
            classes.computeIfAbsent(t[0], k -> new LinkedHashMap<>()).put(t[1], new Field(t));
        }
    }

    private static Catalogue loaded;

    public static synchronized Catalogue get() {
        if (loaded == null) {
            Path p = Paths.get(System.getProperty("kx.catalogue", "build/host/catalogue.txt"));
            try {
                loaded = new Catalogue(Files.readAllLines(p));
            } catch (IOException e) {
                throw new IllegalStateException("catalogue: cannot read " + p + " (the build writes it)", e);
            }
        }
        return loaded;
    }

    /** The described fields of a record class (by its simple name), or null when it has no description. */
    public Map<String, Field> of(Class<?> c) {
        return classes.get(c.getSimpleName());
    }

    public Map<String, Field> of(String simpleName) {
        return classes.get(simpleName);
    }

    public java.util.Set<String> classes() {
        return new java.util.TreeSet<>(classes.keySet());
    }

    public int size() {
        return classes.size();
    }
}
