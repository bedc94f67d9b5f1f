package kxtest;

import static kxtest.RaidGroupTest.S;
import static kxtest.RaidGroupTest.assertFields;
import static kxtest.RaidGroupTest.put;
import static org.junit.Assert.*;

import orvane.str.diskarray.*;
import org.junit.Test;

/** LU guard: the access level table, one LU's level, retention and the expiration lock. */
public class HostPortLuGuardTest extends BridgeTest {
    static final String[] LU_GUARD = {"lu_valid", "capacity", "access_level_valid", "access_level_status",
        "access_level", "svol_disable", "access_inhibit_mode", "access_attr", "changeable_attr", "retention_term"};
    static final int INFO = 163848;

    @Test
    public void guardTableAlwaysHolds4096LusAndItsReaderWalksTheJavaArray() {
        Rec r = Rec.of(INFO).i32(0, 2).i32(4, -1);
        for (int lu : new int[] {0, 9, 4095}) put(r, 8 + 40 * lu, lu, LU_GUARD);
        FakePernix.willWrite("KX_GetLuGuardInformation", 2, r.bytes());
        LuGuardInformation info = jni.KX_GetLuGuardInformation("u", S);
        assertArrayEquals(new int[] {2, -1, 4096}, new int[] {info.option, info.expirationlock, info.lu.length});
        for (int lu : new int[] {0, 9, 4095}) assertFields(info.lu[lu], lu, LU_GUARD);
        assertEquals(0, info.lu[10].lu_valid);
        assertEquals("a record without secrets is released as it is", 1, FakePernix.unwipedReleases(INFO));
    }

    @Test
    public void accessLevelTravelsAsItsThreeInts() {
        LuAccessLevel level = new LuAccessLevel();
        level.lu = 4095;
        level.access_level = 3;
        level.retention_term = -1;
        jni.KX_SetLuAccessLevel("array-g", S, level);
        assertArrayEquals(Rec.of(12).i32(0, 4095).i32(4, 3).i32(8, -1).bytes(), FakePernix.arg("KX_SetLuAccessLevel", 0, 2));
    }
}
