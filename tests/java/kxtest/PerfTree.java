package kxtest;

import static org.junit.Assert.assertEquals;

import java.lang.reflect.Array;
import java.lang.reflect.Constructor;
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

    private static final int INT = 0, RATE = 1, ARRAY = 2, RECORD = 3;

    /**
     * A class's fields as a walk needs them, worked out once per class: the
     * trees hold up to 77,000 objects and the i386 legs interpret every line.
     */
    private static final class Plan {
        final Class<?> type;
        final Field[] fields;
        final int[] kinds;
        final int[][] dims;
        final Plan[] members; // the record class of RECORD fields and of record arrays
        final String[] keys;
        final boolean time;
        Constructor<?> make;

        Plan(Class<?> c) {
            type = c;
            fields = fields(c);
            kinds = new int[fields.length];
            dims = new int[fields.length][];
            members = new Plan[fields.length];
            keys = new String[fields.length];
            time = c.getSimpleName().equals("KXTime");
            for (int i = 0; i < fields.length; i++) {
                fields[i].setAccessible(true);  // no access check at each of the tree's leaves
                Class<?> t = fields[i].getType();
                keys[i] = c.getSimpleName() + "." + fields[i].getName();
                if (t == int.class) {
                    kinds[i] = INT;
                } else if (t == short.class) {
                    kinds[i] = RATE;
                } else if (t.isArray()) {
                    kinds[i] = ARRAY;
                    dims[i] = DIMS.get(keys[i]);
                    if (dims[i] == null) throw new AssertionError("no capacity for " + keys[i]);
                    Class<?> e = t;
                    while (e.isArray()) e = e.getComponentType();
                    if (!e.isPrimitive()) members[i] = plan(e);
                } else {
                    kinds[i] = RECORD;
                    members[i] = plan(t);
                }
            }
        }

        Object make() throws ReflectiveOperationException {
            if (make == null) make = type.getConstructor();
            return make.newInstance();
        }
    }

    private static final Map<Class<?>, Plan> PLANS = new HashMap<>();

    private static Plan plan(Class<?> c) {
        Plan p = PLANS.get(c);
        if (p == null) {
            p = new Plan(c);
            PLANS.put(c, p);
        }
        return p;
    }

    /** Visits every leaf of obj laid out from off; returns the offset after it. */
    static int walk(Object obj, int off, Leaf leaf) {
        try {
            return walk(plan(obj.getClass()), obj, off, leaf);
        } catch (IllegalAccessException e) {
            throw new AssertionError(e);
        }
    }

    private static int walk(Plan p, Object obj, int off, Leaf leaf) throws IllegalAccessException {
        if (p.type != obj.getClass()) p = plan(obj.getClass());
        for (int i = 0; i < p.fields.length; i++) {
            Field f = p.fields[i];
            switch (p.kinds[i]) {
                case INT:
                    f.setInt(obj, leaf.at(off, false, f.getInt(obj)));
                    off += 4;
                    break;
                case RATE:
                    f.setShort(obj, (short) leaf.at(off, true, f.getShort(obj)));
                    off += 8;
                    break;
                case ARRAY:
                    off = walkArray(f.get(obj), p.dims[i], 0, off, leaf, p.keys[i], p.members[i]);
                    break;
                default:
                    off = walk(p.members[i], f.get(obj), off, leaf);
            }
        }
        return p.time ? off + 8 : off;
    }

    private static int walkArray(Object arr, int[] dims, int level, int off, Leaf leaf, String key, Plan member)
            throws IllegalAccessException {
        assertEquals("length of " + key, dims[level], Array.getLength(arr));
        if (arr instanceof int[]) {
            int[] a = (int[]) arr;
            for (int i = 0; i < a.length; i++, off += 4) a[i] = leaf.at(off, false, a[i]);
            return off;
        }
        Object[] a = (Object[]) arr;
        for (int i = 0; i < a.length; i++) {
            off = level + 1 < dims.length ? walkArray(a[i], dims, level + 1, off, leaf, key, member)
                                          : walk(member, a[i], off, leaf);
        }
        return off;
    }

    /** A new tree of class c with every array at its capacity and every element made. */
    static <T> T shape(Class<T> c) {
        try {
            return c.cast(shape(plan(c)));
        } catch (ReflectiveOperationException e) {
            throw new AssertionError(e);
        }
    }

    private static Object shape(Plan p) throws ReflectiveOperationException {
        Object obj = p.make();
        for (int i = 0; i < p.fields.length; i++) {
            if (p.kinds[i] == ARRAY) {
                p.fields[i].set(obj, shapeArray(p.fields[i].getType(), p.dims[i], 0, p.members[i]));
            } else if (p.kinds[i] == RECORD) {
                p.fields[i].set(obj, shape(p.members[i]));
            }
        }
        return obj;
    }

    private static Object shapeArray(Class<?> t, int[] dims, int level, Plan member)
            throws ReflectiveOperationException {
        Class<?> elem = t.getComponentType();
        if (elem == int.class) return new int[dims[level]];
        Object[] arr = (Object[]) Array.newInstance(elem, dims[level]);
        for (int i = 0; i < arr.length; i++) {
            arr[i] = elem.isArray() ? shapeArray(elem, dims, level + 1, member) : shape(member);
        }
        return arr;
    }

    /** Visits every leaf of class c's layout from off, without any object. */
    private static int layout(Plan p, int off, Leaf leaf) {
        for (int i = 0; i < p.fields.length; i++) {
            switch (p.kinds[i]) {
                case INT:
                    leaf.at(off, false, 0);
                    off += 4;
                    break;
                case RATE:
                    leaf.at(off, true, 0);
                    off += 8;
                    break;
                case ARRAY: {
                    int n = 1;
                    for (int d : p.dims[i]) n *= d;
                    for (int k = 0; k < n; k++) {
                        if (p.members[i] == null) {
                            leaf.at(off, false, 0);
                            off += 4;
                        } else {
                            off = layout(p.members[i], off, leaf);
                        }
                    }
                    break;
                }
                default:
                    off = layout(p.members[i], off, leaf);
            }
        }
        return p.time ? off + 8 : off;
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
        int end = layout(plan(c), 0, (off, rate, cur) -> {
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
