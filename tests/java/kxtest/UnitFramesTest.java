package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;

import orvane.str.diskarray.KXUnitParam;
import org.junit.Test;

/** Null arguments and the library's codes, through one unit native of each kind of frame. */
public class UnitFramesTest extends BridgeTest {
    interface Call { Object run() throws Throwable; }

    static Object[] c(String fn, Call call) { return new Object[] {fn, call}; }

    @Test
    public void aNullArgumentIsReportedBeforeAnythingIsAllocated() {
        KXUnitParam u = new KXUnitParam();
        Object[][] cases = {
            c("KX_UnitChange", () -> { jni.KX_UnitChange(null, u); return null; }),
            c("KX_UnitDelete", () -> { jni.KX_UnitDelete(null); return null; }),
            c("KX_GetUnitIdentifier", () -> jni.KX_GetUnitIdentifier(null)),
            c("KX_RgLuFileOutput", () -> { jni.KX_RgLuFileOutput(null, "/tmp/out"); return null; }),
            c("KX_RgLuFileOutput", () -> { jni.KX_RgLuFileOutput("unit", null); return null; }),
            c("KX_ModifyInfo", () -> jni.KX_ModifyInfo(null, 3)),
            c("KX_GetUnitCondition", () -> jni.KX_GetUnitCondition(null, SessionTest.session(1), 0)),
        };
        for (Object[] k : cases) {
            String fn = (String) k[0];
            FakePernix.reset();
            assertEquals(fn, 258, code(() -> ((Call) k[1]).run()));
            assertEquals(fn, 0, FakePernix.calls(fn) + FakePernix.allocations());
        }
    }

    @Test
    public void theLibrarysCodeIsThrownUnchangedAnd256IsSilent() throws Throwable {
        Object[][] cases = {
            c("KX_UnitAdd", () -> { jni.KX_UnitAdd(new KXUnitParam()); return null; }),
            c("KX_GetUnitParamTable", () -> jni.KX_GetUnitParamTable(2)),
            c("KX_ModifyInfo", () -> jni.KX_ModifyInfo("n", 1)),
            c("KX_APIRevision", () -> jni.KX_APIRevision()),
            c("KX_GetUnitCondition", () -> jni.KX_GetUnitCondition("u", null, 0)),
        };
        for (Object[] k : cases) {
            String fn = (String) k[0];
            Call call = (Call) k[1];
            FakePernix.reset();
            FakePernix.willReturn(fn, -5);
            assertEquals(fn, -5, code(() -> call.run()));
            FakePernix.willReturn(fn, 256);
            assertNull(fn, call.run());
            assertEquals(fn, 0, FakePernix.liveBlocks());
        }
    }
}
