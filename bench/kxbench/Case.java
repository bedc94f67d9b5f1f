package kxbench;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import kxtest.FakePernix;
import orvane.str.diskarray.DiskArrayUtilityJNI;
import orvane.str.diskarray.KXSessionInfo;

/**
 * One native under measurement: the record the test double serves, the native
 * call, and the same Java tree built from the same bytes by plain Java code.
 */
public abstract class Case {
    protected static final DiskArrayUtilityJNI JNI = new DiskArrayUtilityJNI();
    protected static final String UNIT = "bench-unit";
    protected static final KXSessionInfo SESSION = new KXSessionInfo();

    static {
        for (int i = 0; i < 32; i++) SESSION.session_id[i] = (byte) (0x40 + i);
    }

    private final String fn;
    private final int recordArg;
    protected final byte[] bytes;
    /** The library answers 256 in the current script (for natives that return nothing). */
    protected boolean quiet;

    /** fn: the library function; recordArg: index of the record it fills; size: the record's bytes. */
    protected Case(String fn, int recordArg, int size) {
        this.fn = fn;
        this.recordArg = recordArg;
        this.bytes = new byte[size];
        fillRecord(ByteBuffer.wrap(bytes).order(ByteOrder.LITTLE_ENDIAN));
    }

    public final String name() {
        return fn;
    }

    /** Writes a realistic record (what a configured unit reports) into buf. */
    protected abstract void fillRecord(ByteBuffer buf);

    /** Calls the native; the test double serves the scripted record. */
    public abstract Object callNative();

    /** The same tree as the native builds, from the same bytes, in plain Java. */
    public abstract Object buildFloor();

    /** The same tree built by hand-written JNI code (HandJni); lax: see HandJni. Null: none written yet. */
    public Object buildJni(boolean lax) {
        return null;
    }

    /** A tree the native built (its result), handed over before any floor is built. */
    protected Object sample;
    private Planned plan;

    public void sample(Object got) {
        sample = got;
    }

    /**
     * The JNI floor laid out from the Java classes (Planned) over the record bytes; copies > 0: an
     * array of that many records (the first from bytes, the rest zero).
     */
    protected final Object planned(boolean lax, int copies) {
        if (plan == null) {
            plan = new Planned(copies > 0 ? java.lang.reflect.Array.get(sample, 0) : sample, reservedTails(), hints());
        }
        return HandJni.planned(plan.flat, bytes, copies, lax);
    }

    /** For planned(): bytes that C records hold after their described fields, by simple class name. */
    protected java.util.Map<String, Integer> reservedTails() {
        return java.util.Map.of("KXTime", 8);
    }

    /** For planned(): C fields the Java types do not tell, by "SimpleClass.field" (see Planned). */
    protected java.util.Map<String, String> hints() {
        return java.util.Map.of();
    }

    /** planned() over the sample's shape: an array of records or one record. */
    protected final Object planned(boolean lax) {
        return planned(lax, sample.getClass().isArray() ? java.lang.reflect.Array.getLength(sample) : 0);
    }

    /** Whether the native builds a Java tree (false: it reads one into a record). */
    public boolean builds() {
        return true;
    }

    /** The Java tree a reader converts; null for a builder. */
    public Object input() {
        return null;
    }

    /** What the floors are compared with: the tree the native returned. */
    public Object result(Object returned) {
        return returned;
    }

    /** Fresh test double serving the record; quiet: the library answers 256 (no conversion). */
    public void script(boolean quiet) {
        this.quiet = quiet;
        FakePernix.reset();
        FakePernix.willWrite(fn, recordArg, bytes);
        if (quiet) FakePernix.willReturn(fn, 256);
        scriptMore();
    }

    /** Scripts further output records of natives that fill more than one. */
    protected void scriptMore() {}

    protected final ByteBuffer le() {
        return ByteBuffer.wrap(bytes).order(ByteOrder.LITTLE_ENDIAN);
    }
}
