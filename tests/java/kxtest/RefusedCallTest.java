package kxtest;

import static org.junit.Assert.assertTrue;
import static org.junit.Assert.fail;

import java.lang.reflect.InvocationTargetException;
import java.util.ArrayList;
import java.util.List;
import org.junit.Test;

/**
 * The JVM refusing one of the calls the bridge makes (kxtest.Absent.refuse),
 * for every native of the frame table:
 * <ul>
 * <li>refusing the local references a call keeps its classes and field IDs in
 *     (EnsureLocalCapacity) costs time only: the library gets the same bytes
 *     and the native answers the same as when they are granted, every class
 *     and field then looked up by name at each use;
 * <li>any other refusal (a String, an array, characters, elements, an object,
 *     a class, a constructor), at any of its calls, is never swallowed: the
 *     native throws the JVM's OutOfMemoryError, the ClassNotFoundException of
 *     a class it could not have, or reports 2817; no block is leaked, and no
 *     JNI call is made with the exception pending (the runner's -Xcheck:jni);
 * <li>a report the JVM cannot build (its class, constructor or object
 *     refused) leaves the JVM's error instead: the ClassNotFoundException of
 *     the report's class, or the OutOfMemoryError, also when no class at all
 *     can be had.
 * </ul>
 */
public class RefusedCallTest extends BridgeTest {
    /** Functions refused one call at a time. */
    static final String[] REFUSED = {"NewStringUTF", "NewIntArray", "NewByteArray", "GetStringUTFChars",
                                     "GetIntArrayElements", "NewObject", "FindClass", "GetMethodID"};

    /** Most calls of one function refused in one native (spread over all its calls). */
    static final int MOST = 6;

    /** Natives whose own rules answer a refusal with another code: that code. */
    static final java.util.Map<String, Integer> OWN_CODE = java.util.Map.of(
        "KX_GetUnitParamTable", -1);  // an array it cannot make is reported as -1

    /** Plain arguments with every record argument filled with data. */
    static Object[] args(FrameTableTest.Row r) throws ReflectiveOperationException {
        Object[] args = FrameTableTest.plainArgs(r.method);
        Class<?>[] types = r.method.getParameterTypes();
        for (int i = 0; i < types.length; i++) {
            if (FrameTableTest.isRecord(types[i]) && args[i] != null) args[i] = ReaderNullMemberTest.filled(types[i], null);
        }
        return args;
    }

    /** What calling r gave: the digest of its result, or what it threw. */
    static final class Outcome {
        Throwable thrown;
        long digest;
    }

    Outcome call(FrameTableTest.Row r) throws ReflectiveOperationException {
        return call(r, args(r));
    }

    Outcome call(FrameTableTest.Row r, Object[] args) throws ReflectiveOperationException {
        Outcome o = new Outcome();
        try {
            o.digest = Soak.digest(r.method.invoke(jni, args), 1);
        } catch (InvocationTargetException e) {
            o.thrown = e.getCause();
            Integer code = FrameTableTest.codeOf(o.thrown);
            o.digest = Soak.digest(o.thrown.getClass().getName() + "/" + (code != null ? code : o.thrown.getMessage()), 2);
        }
        return o;
    }

    @Test
    public void withoutRoomForItsLookupsEveryNativeAnswersAsWithIt() throws Exception {
        List<String> problems = new ArrayList<>();
        int refusing = 0;  // natives whose calls asked for room
        for (FrameTableTest.Row r : FrameTableTest.table()) {
            boolean asked = false;
            for (long seed = 1; seed <= 1; seed++) {
                FakePernix.reset();
                FakePernix.hostile(seed);
                Outcome granted = call(r);
                List<byte[]> sentGranted = FrameTableTest.handedOver(r.name);
                problems.addAll(seamFaults(r + ", seed " + seed));

                FakePernix.hostile(seed);
                Absent.refuse("EnsureLocalCapacity", -1);
                Outcome refused;
                try {
                    refused = call(r);
                } finally {
                    asked |= Absent.none() > 0;
                }
                List<byte[]> sent = FrameTableTest.handedOver(r.name);
                problems.addAll(seamFaults(r + ", seed " + seed + ", no room"));
                String what = r + ", seed " + seed + ", no room: ";
                if (refused.digest != granted.digest) {
                    problems.add(what + (refused.thrown != null ? "threw " + refused.thrown : "answered")
                                 + ", not as with room (" + (granted.thrown != null ? granted.thrown : "a result") + ")");
                }
                for (int i = 0; i < Math.max(sent.size(), sentGranted.size()); i++) {
                    byte[] a = i < sentGranted.size() ? sentGranted.get(i) : null;
                    byte[] b = i < sent.size() ? sent.get(i) : null;
                    int at = ReaderNullMemberTest.firstDifference(a, b, true);
                    if (at >= 0) problems.add(what + "argument " + i + " differs from byte " + at);
                }
            }
            if (asked) refusing++;
        }
        if (refusing < 200) problems.add("only " + refusing + " native(s) asked for room");
        if (!problems.isEmpty()) fail(problems.size() + " problem(s):\n" + String.join("\n", problems));
    }

    /** Up to MOST call numbers out of n: all of them, or spread from the first to the last. */
    static List<Integer> spread(int n) {
        List<Integer> out = new ArrayList<>();
        for (int k = 0; k < Math.min(n, MOST); k++) out.add(n <= MOST ? k : (int) ((long) k * (n - 1) / (MOST - 1)));
        return out;
    }

    /** Whether t is how a refusal may reach the caller of r. */
    static boolean reported(FrameTableTest.Row r, Throwable t) {
        if (t instanceof OutOfMemoryError || t instanceof ClassNotFoundException) return true;
        Integer code = FrameTableTest.codeOf(t);
        return code != null && (code == 2817 || code.equals(OWN_CODE.get(r.name)));
    }

    @Test
    public void aRefusedCallIsNeverSwallowed() throws Exception {
        List<String> problems = new ArrayList<>();
        int tried = 0;
        int[] refusedIn = new int[REFUSED.length];  // natives that call each function
        for (FrameTableTest.Row r : FrameTableTest.table()) {
            // How often the native calls each function when nothing is refused.
            FakePernix.reset();
            Absent.refuse(REFUSED[0], Integer.MAX_VALUE);
            try {
                call(r);
            } finally {
                Absent.none();
            }
            int[] n = new int[REFUSED.length];
            for (int f = 0; f < REFUSED.length; f++) n[f] = Absent.calls(REFUSED[f]);
            problems.addAll(seamFaults(r + ": calls counted"));
            for (int f = 0; f < REFUSED.length; f++) {
                String fn = REFUSED[f];
                if (n[f] > 0) refusedIn[f]++;
                for (int k : spread(n[f])) {
                    FakePernix.reset();
                    Absent.refuse(fn, k);
                    Outcome o;
                    int hits;
                    try {
                        o = call(r);
                    } finally {
                        hits = Absent.none();
                    }
                    String what = r + ": " + fn + " call " + k + " of " + n[f] + " refused";
                    tried++;
                    problems.addAll(seamFaults(what));
                    if (hits != 1) problems.add(what + ": " + hits + " refusal(s) made");
                    else if (o.thrown == null) problems.add(what + ": the native answered as if it had succeeded");
                    else if (!reported(r, o.thrown)) problems.add(what + ": threw " + o.thrown);
                }
            }
        }
        for (int f = 0; f < REFUSED.length; f++) if (refusedIn[f] == 0) problems.add("no native calls " + REFUSED[f]);
        assertTrue("only " + tried + " refusal(s) tried", tried > 1000);
        if (!problems.isEmpty()) {
            fail(problems.size() + " problem(s):\n" + String.join("\n", problems.subList(0, Math.min(200, problems.size()))));
        }
    }

    static final String REPORT_CLASS = "orvane/str/diskarray/DiskArrayException";

    /** Calling r with plain arguments while the library fails with 1234 and call `nth` of fn is refused. */
    Outcome failing(FrameTableTest.Row r, String fn, int nth, List<String> problems, String what)
        throws ReflectiveOperationException {
        FakePernix.reset();
        FakePernix.willReturn(r.name, 1234);
        Absent.refuse(fn, nth);
        Outcome o;
        try {
            o = call(r, FrameTableTest.plainArgs(r.method));
        } finally {
            Absent.none();
        }
        problems.addAll(seamFaults(what));
        return o;
    }

    @Test
    public void aReportTheJvmCannotBuildLeavesTheJvmsError() throws Exception {
        List<String> problems = new ArrayList<>();
        int checked = 0;
        for (FrameTableTest.Row r : FrameTableTest.table()) {
            // Natives whose own rules answer the library's failure otherwise are left out.
            Outcome plain = failing(r, "FindClass", Integer.MAX_VALUE, problems, r + ": library failing");
            Integer code = FrameTableTest.codeOf(plain.thrown);
            if (code == null || code != 1234) continue;
            checked++;
            for (String fn : new String[] {"FindClass", "GetMethodID", "NewObject"}) {
                failing(r, fn, Integer.MAX_VALUE, problems, r + ": " + fn + " counted");
                int n = Absent.calls(fn);
                // The report's own call is the last one.
                String what = r + ": the report's " + fn + " refused";
                Outcome o = failing(r, fn, n - 1, problems, what);
                boolean ok = fn.equals("FindClass")
                    ? o.thrown instanceof ClassNotFoundException && REPORT_CLASS.equals(o.thrown.getMessage())
                    : o.thrown instanceof OutOfMemoryError;
                if (!ok) problems.add(what + ": threw " + o.thrown);
            }
            Outcome o = failing(r, "FindClass", -1, problems, r + ": every class refused");
            if (!(o.thrown instanceof OutOfMemoryError)) problems.add(r + ": every class refused: threw " + o.thrown);
        }
        if (checked < 200) problems.add("only " + checked + " native(s) report the library's code");
        if (!problems.isEmpty()) fail(problems.size() + " problem(s):\n" + String.join("\n", problems));
    }
}
