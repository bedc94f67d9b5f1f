package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;

import org.junit.Test;

/**
 * Flushes of stdout by the natives the frame table cannot describe: the unit
 * table flushes once, after the library call, whatever it answered; the
 * password check flushes on entry and again before every return that reaches
 * the library, a reported result included.
 */
public class FlushQuirksTest extends BridgeTest {
    /** Flushes while body runs, and how many of them came before the call of fn. */
    static long[] flushes(String fn, Body body) throws Throwable {
        long before = FakePernix.flushes();
        try {
            body.run();
        } catch (Throwable t) {
            // the outcome is checked by the families' own tests
        }
        long atCall = FakePernix.calls(fn) == 0 ? -1 : FakePernix.flushesAtCall(fn, 0) - before;
        long total = FakePernix.flushes() - before;
        FakePernix.reset();
        return new long[] {atCall, total};
    }

    @Test
    public void unitTableFlushesOnceAfterTheCallOnEveryPathThatReachesTheLibrary() throws Throwable {
        FakePernix.willWrite("KX_GetUnitParamTable", 1, Rec.of(256).bytes());
        // one record converted, its writer flushing too
        assertEquals(1, jni.KX_GetUnitParamTable(1).length);
        FakePernix.reset();
        FakePernix.willWrite("KX_GetUnitParamTable", 1, Rec.of(256).bytes());
        assertEquals(2, flushes("KX_GetUnitParamTable", () -> jni.KX_GetUnitParamTable(1))[1]);
        assertEquals(0, flushes("KX_GetUnitParamTable", () -> jni.KX_GetUnitParamTable(0))[0]);
        assertEquals(1, flushes("KX_GetUnitParamTable", () -> jni.KX_GetUnitParamTable(0))[1]);
        FakePernix.willReturn("KX_GetUnitParamTable", 7);
        assertEquals(1, flushes("KX_GetUnitParamTable", () -> jni.KX_GetUnitParamTable(0))[1]);
        FakePernix.failAllocation(1);
        assertEquals(0, flushes("KX_GetUnitParamTable", () -> assertNull(jni.KX_GetUnitParamTable(2)))[1]);
    }

    @Test
    public void passwordCheckFlushesOnEntryAndBeforeItAnswers() throws Throwable {
        for (int rc : new int[] {0, -1, 256, 5}) {
            FakePernix.willReturn("KX_PasswdCheck", rc);
            long[] n = flushes("KX_PasswdCheck", () -> jni.KX_PasswdCheck("x"));
            assertEquals("result " + rc, 1, n[0]);
            assertEquals("result " + rc, 2, n[1]);
        }
    }
}
