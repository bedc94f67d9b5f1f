package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;

import orvane.str.diskarray.GUIInitialize;
import orvane.str.diskarray.KXUnitParam;
import orvane.str.diskarray.UnitIdentifier;
import org.junit.Test;

/** What every unit native shares: null arguments, and the library's codes. */
public class UnitFramesTest extends BridgeTest {
    /** A native call and what it answers. */
    interface Call {
        Object run() throws Throwable;
    }

    static final class Case {
        final String fn;
        final Call call;

        Case(String fn, Call call) {
            this.fn = fn;
            this.call = call;
        }
    }

    private Case[] nullArguments() {
        KXUnitParam u = new KXUnitParam();
        return new Case[] {
            new Case("KX_UnitChange", () -> { jni.KX_UnitChange(null, u); return null; }),
            new Case("KX_UnitChangeByIP", () -> { jni.KX_UnitChangeByIP(null, u); return null; }),
            new Case("KX_UnitDelete", () -> { jni.KX_UnitDelete(null); return null; }),
            new Case("KX_GetUnitParam", () -> jni.KX_GetUnitParam(null)),
            new Case("KX_GetUnitIdentifier", () -> jni.KX_GetUnitIdentifier(null)),
            new Case("KX_SetUnitIdentifier", () -> { jni.KX_SetUnitIdentifier(null, new UnitIdentifier()); return null; }),
            new Case("KX_UnitReboot", () -> { jni.KX_UnitReboot(null, SessionTest.session(1)); return null; }),
            new Case("KX_TestUnitReady", () -> { jni.KX_TestUnitReady(null, 1); return null; }),
            new Case("KX_JavaVersionCheck", () -> { jni.KX_JavaVersionCheck(null); return null; }),
            new Case("KX_RgLuFileOutput", () -> { jni.KX_RgLuFileOutput(null, "/tmp/out"); return null; }),
            new Case("KX_RgLuFileOutput", () -> { jni.KX_RgLuFileOutput("unit", null); return null; }),
            new Case("KX_ModifyInfo", () -> jni.KX_ModifyInfo(null, 3)),
            new Case("KX_GetUnitCondition", () -> jni.KX_GetUnitCondition(null, SessionTest.session(1), 0)),
        };
    }

    private Case[] all() {
        KXUnitParam u = new KXUnitParam();
        return new Case[] {
            new Case("KX_UnitAdd", () -> { jni.KX_UnitAdd(u); return null; }),
            new Case("KX_UnitAddByIP", () -> { jni.KX_UnitAddByIP(u); return null; }),
            new Case("KX_UnitChange", () -> { jni.KX_UnitChange("u", u); return null; }),
            new Case("KX_UnitChangeByIP", () -> { jni.KX_UnitChangeByIP("u", u); return null; }),
            new Case("KX_UnitDelete", () -> { jni.KX_UnitDelete("u"); return null; }),
            new Case("KX_GetUnitParam", () -> jni.KX_GetUnitParam("u")),
            new Case("KX_GetUnitParamTable", () -> jni.KX_GetUnitParamTable(2)),
            new Case("KX_DiscoverUnitInformation", () -> jni.KX_DiscoverUnitInformation(null)),
            new Case("KX_DiscoverUnitInformationEx", () -> jni.KX_DiscoverUnitInformationEx(null)),
            new Case("KX_GetUnitIdentifier", () -> jni.KX_GetUnitIdentifier("u")),
            new Case("KX_SetUnitIdentifier", () -> { jni.KX_SetUnitIdentifier("u", null); return null; }),
            new Case("KX_UnitReboot", () -> { jni.KX_UnitReboot("u", null); return null; }),
            new Case("KX_TestUnitReady", () -> { jni.KX_TestUnitReady("u", 1); return null; }),
            new Case("KX_GUIInitialize", () -> { jni.KX_GUIInitialize(new GUIInitialize()); return null; }),
            new Case("KX_EnvironmentCheck", () -> { jni.KX_EnvironmentCheck(); return null; }),
            new Case("KX_JavaVersionCheck", () -> { jni.KX_JavaVersionCheck("17"); return null; }),
            new Case("KX_RgLuFileOutput", () -> { jni.KX_RgLuFileOutput("u", "/tmp/out"); return null; }),
            new Case("KX_ModifyInfo", () -> jni.KX_ModifyInfo("n", 1)),
            new Case("KX_APIRevision", () -> jni.KX_APIRevision()),
            new Case("KX_GetUnitCondition", () -> jni.KX_GetUnitCondition("u", null, 0)),
        };
    }

    @Test
    public void aNullArgumentIsReportedBeforeTheLibraryIsCalled() {
        for (Case c : nullArguments()) {
            FakePernix.reset();
            assertEquals(c.fn, 258, code(() -> c.call.run()));
            assertEquals(c.fn, 0, FakePernix.calls(c.fn));
            assertEquals(c.fn, 0, FakePernix.allocations());
        }
    }

    @Test
    public void theLibrarysCodeIsThrownUnchangedAnd256IsSilent() throws Throwable {
        for (Case c : all()) {
            FakePernix.reset();
            FakePernix.willReturn(c.fn, -5);
            assertEquals(c.fn, -5, code(() -> c.call.run()));
            FakePernix.willReturn(c.fn, 0x0B02);
            assertEquals(c.fn, 0x0B02, code(() -> c.call.run()));
            FakePernix.willReturn(c.fn, 256);
            assertNull(c.fn, c.call.run());
            assertEquals(c.fn, 3, FakePernix.calls(c.fn));
            assertEquals(c.fn, 0, FakePernix.liveBlocks());
        }
    }
}
