package kxtest;

import static org.junit.Assert.assertEquals;

import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.Modifier;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.util.HashMap;
import java.util.Map;

/**
 * The statistics and performance trees as their C records lay them out: every
 * int a 4-byte word, every fixed-point short an 8-byte double, fields one after
 * the other in declaration order, arrays row-major at their fixed capacities,
 * and the time record's 8 trailing bytes outside any field.
 *
 * A walk visits every leaf with its byte offset: to check a tree the native
 * built against the record bytes, to fill a tree from record bytes, or to
 * write a patterned record.  The patterned value of a word depends on its
 * offset and a seed, so a field read from the wrong place shows.
 */
final class PerfTree {
    private PerfTree() {}

    /** Capacities of the array fields, "Class.field". */
    static final Map<String, int[]> DIMS = new HashMap<>();

    private static void dims(String cls, Object... fieldAndDims) {
        for (int i = 0; i < fieldAndDims.length; i += 2) DIMS.put(cls + "." + fieldAndDims[i], (int[]) fieldAndDims[i + 1]);
    }

    private static int[] d(int... n) {
        return n;
    }

    static {
        int[] two = d(2), drives = d(30, 15), lus = d(4096);
        dims("StatisticalInformation", "controller", two, "h_command", two, "h_command_unite", two, "com_status", two,
            "com_status_unite", two, "cache", two, "writeafter", two, "drive_rest", two, "cache_mem", two, "drive", two,
            "h_spc", two, "d_spc", two, "d_fpc", two, "d_dma", two, "h_dma", two, "hontai", two, "shuuhen", two,
            "dual", two, "fibre", two, "unit", two, "drive_err", two);
        dims("StatisticalController", "procnt_time", d(4));
        dims("StatisticalHostCommand", "lu", lus);
        dims("StatisticalCommandStatus", "lu", lus);
        dims("StatisticalCache", "cachepartition", d(32));
        dims("StatisticalWriteAfter", "raid0_stripe_job", drives, "raid5_stripe_job", drives, "stripe_job_rmw", drives,
            "stripe_job_partial", drives, "pdev", drives);
        dims("StatisticalCacheMemory", "correct_err", d(32), "segment", d(32, 18));
        dims("StatisticalDrive", "drive", drives);
        dims("StatisticalDrive_Info", "drv_port_err", two, "link_failre", two);
        dims("StatisticalHostSpc", "port", d(4));
        dims("StatisticalDriveSpc", "err_count", d(6));
        dims("StatisticalDriveFpc", "fpc", d(4));
        dims("StatisticalDriveDma", "error", d(6));
        dims("StatisticalFibre", "Install", d(4), "Pson", d(4));
        dims("StatisticalDriveError", "drive", drives);
        dims("StatisticalDriveError_Info", "drive_port_limit1", two, "drive_port_limit2", two, "drive_port_limit3", two);
        dims("StatisticalCommand", "lu", lus);
        dims("PerformanceAll", "port", d(4), "rg", d(90), "lu", lus, "lu_ex", lus, "cachePartition", d(32),
            "backend", d(8), "drive", drives, "vu_port", d(4), "vu_lu", lus);
        dims("DriveAll_Info", "tag_count", d(60));
        dims("PerformanceCollectGraph", "mtime", two, "port", d(4), "lu", lus, "backend", d(8), "drive", drives,
            "driveopr", drives, "rg", d(90), "luex", lus, "cachepartition", d(32), "vu_port", d(4), "vu_lu", lus);
    }

    /** What a walk does at a leaf; returns the value to store in the field. */
    interface Leaf {
        int at(int off, boolean rate, int current);
    }

    static Field[] fields(Class<?> c) {
        return java.util.Arrays.stream(c.getDeclaredFields())
            .filter(f -> !Modifier.isStatic(f.getModifiers())).toArray(Field[]::new);
    }

    /** Visits every leaf of obj laid out from off; returns the offset after it. */
    static int walk(Object obj, int off, Leaf leaf) {
        try {
            Class<?> c = obj.getClass();
            for (Field f : fields(c)) {
                Class<?> t = f.getType();
                String key = c.getSimpleName() + "." + f.getName();
                if (t == int.class) {
                    f.setInt(obj, leaf.at(off, false, f.getInt(obj)));
                    off += 4;
                } else if (t == short.class) {
                    f.setShort(obj, (short) leaf.at(off, true, f.getShort(obj)));
                    off += 8;
                } else if (t.isArray()) {
                    int[] dims = DIMS.get(key);
                    if (dims == null) throw new AssertionError("no capacity for " + key);
                    off = walkArray(f.get(obj), dims, 0, off, leaf, key);
                } else {
                    off = walk(f.get(obj), off, leaf);
                }
            }
            if (c.getSimpleName().equals("KXTime")) off += 8;
            return off;
        } catch (IllegalAccessException e) {
            throw new AssertionError(e);
        }
    }

    private static int walkArray(Object arr, int[] dims, int level, int off, Leaf leaf, String key) {
        assertEquals("length of " + key, dims[level], Array.getLength(arr));
        for (int i = 0; i < dims[level]; i++) {
            if (level + 1 < dims.length) {
                off = walkArray(Array.get(arr, i), dims, level + 1, off, leaf, key);
            } else if (arr instanceof int[]) {
                int[] a = (int[]) arr;
                a[i] = leaf.at(off, false, a[i]);
                off += 4;
            } else {
                off = walk(Array.get(arr, i), off, leaf);
            }
        }
        return off;
    }

    /** A new tree of class c with every array at its capacity and every element made. */
    static <T> T shape(Class<T> c) {
        try {
            T obj = c.getConstructor().newInstance();
            for (Field f : fields(c)) {
                Class<?> t = f.getType();
                if (t.isPrimitive()) continue;
                if (t.isArray()) {
                    f.set(obj, shapeArray(t, DIMS.get(c.getSimpleName() + "." + f.getName()), 0));
                } else {
                    f.set(obj, shape(t));
                }
            }
            return obj;
        } catch (ReflectiveOperationException e) {
            throw new AssertionError(e);
        }
    }

    private static Object shapeArray(Class<?> t, int[] dims, int level) {
        Class<?> elem = t.getComponentType();
        Object arr = Array.newInstance(elem, dims[level]);
        if (elem.isPrimitive()) return arr;
        for (int i = 0; i < dims[level]; i++) {
            Array.set(arr, i, elem.isArray() ? shapeArray(elem, dims, level + 1) : shape(elem));
        }
        return arr;
    }

    /** The patterned word at off. */
    static int word(int off, int seed) {
        return off * 0x9E3779B1 + seed;
    }

    /** The patterned fixed-point short at off (a double of value/100 in the record). */
    static short fixed(int off, int seed) {
        return (short) (((off / 4) * 7 + seed) % 60000 - 30000);
    }

    /**
     * A patterned record of class c.  exact: rates are fixed/100 exactly, as the
     * Java-to-C converters write them; otherwise a little further from zero, so
     * that the truncating C-to-Java conversion yields fixed.
     */
    static byte[] pattern(Class<?> c, int size, int seed, boolean exact) {
        ByteBuffer b = ByteBuffer.allocate(size).order(ByteOrder.LITTLE_ENDIAN);
        int end = walk(shape(c), 0, (off, rate, cur) -> {
            if (rate) {
                int k = fixed(off, seed);
                b.putDouble(off, exact ? k / 100.0 : (k + Math.signum(k) * 0.4) / 100.0);
            } else {
                b.putInt(off, word(off, seed));
            }
            return cur;
        });
        assertEquals("record size of " + c.getSimpleName(), size, end);
        return b.array();
    }

    /** A tree of class c holding the pattern. */
    static <T> T patterned(Class<T> c, int seed) {
        T obj = shape(c);
        walk(obj, 0, (off, rate, cur) -> rate ? fixed(off, seed) : word(off, seed));
        return obj;
    }

    /** Asserts that obj, built by the native, holds the pattern and spans size bytes. */
    static void assertPatterned(Object obj, int size, int seed) {
        int end = walk(obj, 0, (off, rate, cur) -> {
            int want = rate ? fixed(off, seed) : word(off, seed);
            if (cur != want) throw new AssertionError("value at offset " + off + ": " + cur + ", expected " + want);
            return cur;
        });
        assertEquals(size, end);
    }
}
