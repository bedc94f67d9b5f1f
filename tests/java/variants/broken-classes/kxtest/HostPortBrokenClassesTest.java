package kxtest;

import static org.junit.Assert.*;

import orvane.str.diskarray.*;
import org.junit.Before;
import org.junit.Test;

/**
 * Record classes that fail from a chosen instance on: the pair getters end
 * quietly at the first controller that cannot be built and build nothing
 * after it; the single-record getters report 2817, secrets cleared all the same.
 */
public class HostPortBrokenClassesTest extends BridgeTest {
    static final KXSessionInfo S = new KXSessionInfo();

    @Before
    public void resetCounters() {
        FibreInformationPermission.made = 0;
        FibreInformationPermission.failAt = Integer.MAX_VALUE;
        FibreInformationPermission.throwing = false;
        TargetLunList.made = 0;
        TargetLunList.failAt = Integer.MAX_VALUE;
        LuGuard.made = 0;
        LuGuard.failAt = Integer.MAX_VALUE;
        KXiSCSICHAPUserInfo.made = 0;
        KXiSCSICHAPUserInfo.failAt = Integer.MAX_VALUE;
    }

    @Test
    public void aControllerThatCannotBeBuiltLeavesItsSlotNullWithoutAReport() {
        FakePernix.willWrite("KX_GetFibreInformation", 2, Rec.of(152636).u8(0, 0x80).bytes());
        FibreInformationPermission.failAt = 4 * 128 + 1;  // the first permission of the second controller
        FibreInformation[] got = jni.KX_GetFibreInformation("u", S);
        assertEquals(2, got.length);
        assertEquals(-128, got[0].lun_security);
        assertNull(got[1]);
        assertEquals("nothing built after the failure", 4 * 128 + 1, FibreInformationPermission.made);

        resetCounters();
        FibreInformationPermission.failAt = 1;
        got = jni.KX_GetFibreInformation("u", S);
        assertArrayEquals(new Object[2], got);
        assertEquals(1, FibreInformationPermission.made);

        resetCounters();
        TargetLunList.failAt = 4 * 16 + 3;
        TargetId[] ids = jni.KX_GetTargetId("u", 0);
        assertNotNull(ids[0]);
        assertNull(ids[1]);
        assertEquals(4 * 16 + 3, TargetLunList.made);
        assertNotNull("the WZ classes are not affected", jni.KX_WZTargetIdImport("u", "/f", "/g", 0)[1]);
    }

    @Test
    public void aJavaErrorWhileBuildingAPairReachesTheCallerAsItIs() {
        FibreInformationPermission.failAt = 10;
        FibreInformationPermission.throwing = true;
        Throwable t = thrown(() -> jni.KX_GetFibreInformation("u", S));
        assertEquals(IllegalStateException.class, t.getClass());
        assertEquals("permission 10", t.getMessage());
        assertEquals(10, FibreInformationPermission.made);
        // A library error is reported before anything is built.
        FakePernix.willReturn("KX_GetFibreInformation", 4);
        assertEquals(4, code(() -> jni.KX_GetFibreInformation("u", S)));
    }

    @Test
    public void singleRecordGettersReport2817AndStillClearTheirSecrets() {
        LuGuard.failAt = 100;
        assertEquals(2817, code(() -> jni.KX_GetLuGuardInformation("u", S)));
        assertEquals(100, LuGuard.made);

        Rec chap = Rec.of(1360004);
        for (int u = 0; u < 512; u++) chap.str(4 + 16 + 332 * u + 265, "secret" + u);
        FakePernix.willWrite("KX_GetiSCSICHAPUserInformationAll", 2, chap.bytes());
        KXiSCSICHAPUserInfo.failAt = 700;
        assertEquals(2817, code(() -> jni.KX_GetiSCSICHAPUserInformationAll("u", S)));
        assertEquals(700, KXiSCSICHAPUserInfo.made);
        assertEquals(0, FakePernix.unwipedReleases(1360004));
    }
}
