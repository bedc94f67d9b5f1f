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
        c.ctrl_name_mode = mode; c.id_front = front; c.id_rear = rear;
        return c;
    }

    static UnitIdentifier identifier(ControllerInfo... ctl) {
        UnitIdentifier id = new UnitIdentifier();
        id.equipment_id = "ABCDEFG"; id.ctl = ctl;
        return id;
    }

    @Test
    public void identifierTravelsWithExactlyTwoControllers() {
        jni.KX_SetUnitIdentifier(repeat('n', 70), identifier(
                controller(0x01020304, "FRONT-1234", "RRR"), controller(-2, "F2", "R2"),
                controller(9, "extra", "x")));  // a third controller has no place in the record
        jni.KX_SetUnitIdentifier("u", identifier((ControllerInfo[]) null));
        assertCString(repeat('n', 70), 65, FakePernix.arg("KX_SetUnitIdentifier", 0, 0));
        assertArrayEquals(Rec.of(40).put(0, cstr("ABCDEFG", 5))
                .i32(8, 0x01020304).put(12, cstr("FRONT-1234", 9)).put(21, cstr("RRR", 3))
                .i32(24, -2).put(28, cstr("F2", 9)).put(37, cstr("R2", 3)).bytes(),
                FakePernix.arg("KX_SetUnitIdentifier", 0, 1));
        assertArrayEquals(Rec.of(40).str(0, "ABCD").bytes(), FakePernix.arg("KX_SetUnitIdentifier", 1, 1));

        FakePernix.willWrite("KX_GetUnitIdentifier", 1, Rec.of(40)
                .str(0, "EQ12X")  // fills the field to its last byte
                .i32(8, -1).str(12, "FRONT-AAA").str(21, "R1").i32(24, 65536).str(28, "F").bytes());
        UnitIdentifier id = jni.KX_GetUnitIdentifier("unit-7");
        assertEquals("EQ12X", id.equipment_id);
        assertEquals(2, id.ctl.length);
        assertEquals("-1/FRONT-AAA/R1", id.ctl[0].ctrl_name_mode + "/" + id.ctl[0].id_front + "/" + id.ctl[0].id_rear);
        assertEquals("65536/F/", id.ctl[1].ctrl_name_mode + "/" + id.ctl[1].id_front + "/" + id.ctl[1].id_rear);
    }

    @Test
    public void guiInitializeCutsTheDumpPathToItsField() {
        GUIInitialize init = new GUIInitialize();
        init.damp_path = repeat('p', 300);
        jni.KX_GUIInitialize(init);
        assertCString(repeat('p', 300), 250, FakePernix.arg("KX_GUIInitialize", 0, 0));
    }

    @Test
    public void modifyInfoAndRevisionReturnTheLibrarysText() {
        FakePernix.willWrite("KX_ModifyInfo", 2, cstr("modified: 3 entries", 1024));
        assertEquals("modified: 3 entries", jni.KX_ModifyInfo(repeat('k', 1100), 42));
        assertCString(repeat('k', 1100), 1024, FakePernix.arg("KX_ModifyInfo", 0, 0));
        assertEquals(42, FakePernix.intArg("KX_ModifyInfo", 0, 1));
        assertArrayEquals(new byte[1024], FakePernix.arg("KX_ModifyInfo", 0, 2));
        FakePernix.willWrite("KX_ModifyInfo", 2, repeat('m', 1024).getBytes());
        assertEquals("a full buffer is read to its end only", repeat('m', 1024), jni.KX_ModifyInfo("k", 0));

        FakePernix.willWrite("KX_APIRevision", 0, cstr("1.2.3", 20));
        FakePernix.willWrite("KX_APIRevision", 1, repeat('b', 20).getBytes());
        FakePernix.willWrite("KX_APIRevision", 2, repeat('c', 52).getBytes());
        assertArrayEquals(new String[] {"1.2.3", repeat('b', 20), repeat('c', 52)}, jni.KX_APIRevision());
    }
}
