package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import orvane.str.diskarray.ControllerInfo;
import orvane.str.diskarray.GUIInitialize;
import orvane.str.diskarray.UnitIdentifier;
import org.junit.Test;

public class UnitIdentityTest extends BridgeTest {
    static ControllerInfo controller(int mode, String front, String rear) {
        ControllerInfo c = new ControllerInfo();
        c.ctrl_name_mode = mode;
        c.id_front = front;
        c.id_rear = rear;
        return c;
    }

    static UnitIdentifier identifier(ControllerInfo... ctl) {
        UnitIdentifier id = new UnitIdentifier();
        id.equipment_id = "ABCDEFG";
        id.ctl = ctl;
        return id;
    }

    @Test
    public void setIdentifierHandsBothControllersAtTheirOffsets() {
        jni.KX_SetUnitIdentifier(repeat('n', 70), identifier(
                controller(0x01020304, "FRONT-1234", "RRR"), controller(-2, "F2", "R2"),
                controller(9, "extra", "x")));  // a third controller has no place in the record
        assertCString(repeat('n', 70), 65, FakePernix.arg("KX_SetUnitIdentifier", 0, 0));
        byte[] expected = Rec.of(40)
                .put(0, cstr("ABCDEFG", 5))
                .i32(8, 0x01020304).put(12, cstr("FRONT-1234", 9)).put(21, cstr("RRR", 3))
                .i32(24, -2).put(28, cstr("F2", 9)).put(37, cstr("R2", 3))
                .bytes();
        assertArrayEquals(expected, FakePernix.arg("KX_SetUnitIdentifier", 0, 1));
    }

    @Test
    public void setIdentifierWithoutControllersSendsTheIdentifierOnly() {
        jni.KX_SetUnitIdentifier("u", identifier((ControllerInfo[]) null));
        jni.KX_SetUnitIdentifier("u", identifier(controller(7, "F", "R")));
        jni.KX_SetUnitIdentifier("u", null);
        assertArrayEquals(Rec.of(40).str(0, "ABCD").bytes(), FakePernix.arg("KX_SetUnitIdentifier", 0, 1));
        assertArrayEquals(Rec.of(40).str(0, "ABCD").i32(8, 7).str(12, "F").str(21, "R").bytes(),
                FakePernix.arg("KX_SetUnitIdentifier", 1, 1));
        assertArrayEquals(new byte[40], FakePernix.arg("KX_SetUnitIdentifier", 2, 1));
    }

    @Test
    public void getIdentifierAlwaysBuildsTwoControllers() {
        FakePernix.willWrite("KX_GetUnitIdentifier", 1, Rec.of(40)
                .str(0, "EQ12X")  // fills the field to its last byte
                .i32(8, -1).str(12, "FRONT-AAA").str(21, "R1")
                .i32(24, 65536).str(28, "F").bytes());
        UnitIdentifier id = jni.KX_GetUnitIdentifier("unit-7");
        assertCString("unit-7", 65, FakePernix.arg("KX_GetUnitIdentifier", 0, 0));
        assertEquals("EQ12X", id.equipment_id);
        assertEquals(2, id.ctl.length);
        assertEquals(-1, id.ctl[0].ctrl_name_mode);
        assertEquals("FRONT-AAA", id.ctl[0].id_front);
        assertEquals("R1", id.ctl[0].id_rear);
        assertEquals(65536, id.ctl[1].ctrl_name_mode);
        assertEquals("F", id.ctl[1].id_front);
        assertEquals("", id.ctl[1].id_rear);

        FakePernix.willWrite("KX_GetUnitIdentifier", 1, new byte[40]);
        assertEquals(2, jni.KX_GetUnitIdentifier("unit-7").ctl.length);
    }

    @Test
    public void maintenanceCallsPassTheirArguments() {
        jni.KX_UnitReboot(repeat('r', 1100), SessionTest.session(40));
        assertCString(repeat('r', 1100), 1024, FakePernix.arg("KX_UnitReboot", 0, 0));
        assertArrayEquals(SessionTest.session(40).session_id, FakePernix.arg("KX_UnitReboot", 0, 1));
        jni.KX_UnitReboot("u", null);
        assertArrayEquals(new byte[32], FakePernix.arg("KX_UnitReboot", 1, 1));

        jni.KX_TestUnitReady("unit-3", -77);
        assertCString("unit-3", 65, FakePernix.arg("KX_TestUnitReady", 0, 0));
        assertEquals(-77, FakePernix.intArg("KX_TestUnitReady", 0, 1));

        jni.KX_JavaVersionCheck("17.0.9");
        assertCString("17.0.9", 1024, FakePernix.arg("KX_JavaVersionCheck", 0, 0));

        jni.KX_RgLuFileOutput(repeat('u', 80), "/var/tmp/rglu.csv");
        assertCString(repeat('u', 80), 65, FakePernix.arg("KX_RgLuFileOutput", 0, 0));
        assertCString("/var/tmp/rglu.csv", 1024, FakePernix.arg("KX_RgLuFileOutput", 0, 1));

        jni.KX_EnvironmentCheck();
        assertEquals(1, FakePernix.calls("KX_EnvironmentCheck"));
    }

    @Test
    public void guiInitializeHasNoNullTest() {
        GUIInitialize init = new GUIInitialize();
        init.damp_path = repeat('p', 300);
        jni.KX_GUIInitialize(init);
        jni.KX_GUIInitialize(null);
        assertCString(repeat('p', 300), 250, FakePernix.arg("KX_GUIInitialize", 0, 0));
        assertArrayEquals(new byte[250], FakePernix.arg("KX_GUIInitialize", 1, 0));
    }

    @Test
    public void modifyInfoReturnsTheLibrarysText() {
        FakePernix.willWrite("KX_ModifyInfo", 2, cstr("modified: 3 entries", 1024));
        assertEquals("modified: 3 entries", jni.KX_ModifyInfo("key-name", 42));
        assertCString("key-name", 1024, FakePernix.arg("KX_ModifyInfo", 0, 0));
        assertEquals(42, FakePernix.intArg("KX_ModifyInfo", 0, 1));
        assertArrayEquals(new byte[1024], FakePernix.arg("KX_ModifyInfo", 0, 2));

        FakePernix.willWrite("KX_ModifyInfo", 2, repeat('m', 1024).getBytes());
        assertEquals("a full buffer is read to its end only", repeat('m', 1024), jni.KX_ModifyInfo("k", 0));
        FakePernix.willWrite("KX_ModifyInfo", 2, new byte[1024]);
        assertEquals("", jni.KX_ModifyInfo("k", 0));
    }

    @Test
    public void apiRevisionReturnsTheThreeStringsInOrder() {
        FakePernix.willWrite("KX_APIRevision", 0, cstr("1.2.3", 20));
        FakePernix.willWrite("KX_APIRevision", 1, repeat('b', 20).getBytes());
        FakePernix.willWrite("KX_APIRevision", 2, repeat('c', 52).getBytes());
        assertArrayEquals(new String[] {"1.2.3", repeat('b', 20), repeat('c', 52)}, jni.KX_APIRevision());
        FakePernix.reset();
        assertArrayEquals(new String[] {"", "", ""}, jni.KX_APIRevision());
    }

    @Test
    public void everyAllocationFailureIsReported() throws Throwable {
        assertEachAllocationFailureReported(() -> jni.KX_GetUnitIdentifier("u"));
        assertEachAllocationFailureReported(() -> jni.KX_SetUnitIdentifier("u", identifier()));
        assertEachAllocationFailureReported(() -> jni.KX_UnitReboot("u", SessionTest.session(0)));
        assertEachAllocationFailureReported(() -> jni.KX_GUIInitialize(new GUIInitialize()));
    }
}
