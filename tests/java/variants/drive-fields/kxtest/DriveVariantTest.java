package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.DriveFlashInfo;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.SATADriveInformation;
import orvane.str.diskarray.SmartInfo;
import orvane.str.diskarray.SweepInfo;
import org.junit.Test;

/**
 * Record classes that lack a field (or hold it with another type): the
 * single-record getters report 2817, the lists that end quietly leave the
 * JVM's own error to the caller and never report 2817.
 */
public class DriveVariantTest extends BridgeTest {
    static final KXSessionInfo S = new KXSessionInfo();

    @Test
    public void aDriveThatCannotBeBuiltIsReportedByTheSingleGetterOnly() throws Throwable {
        assertEquals(2817, code(() -> jni.KX_GetDriveInformation("u", S, 0, 0)));
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_GetDriveInformationAll("u", S)).getClass());
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_GetDriveStatus("u", S)).getClass());
        assertEquals(1, FakePernix.calls("KX_GetDriveInformationAll"));
        assertEquals(1, FakePernix.calls("KX_GetDriveStatus"));
        // A library error still wins over the conversion.
        FakePernix.willReturn("KX_GetDriveStatus", 9);
        assertEquals(9, code(() -> jni.KX_GetDriveStatus("u", S)));
    }

    @Test
    public void theFormatStatusListLeavesItsFailureUnreported() throws Throwable {
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_LogicalUnitFormatStatusList("u")).getClass());
        assertEquals(1, FakePernix.calls("KX_LogicalUnitFormatStatusList"));
    }

    @Test
    public void nestedRecordsThatCannotBeBuiltFailTheWholeObject() throws Throwable {
        assertEquals(2817, code(() -> jni.KX_GetSATADriveInformation("u", S)));
        assertEquals(2817, code(() -> jni.KX_GetSpinDownUpInformation("u", S)));
    }

    @Test
    public void aNestedRecordThatCannotBeReadStopsTheReadingThere() {
        SATADriveInformation s = new SATADriveInformation();
        s.sweep_info = new SweepInfo();
        s.sweep_info.stop_time = 4;
        s.flash_info = new DriveFlashInfo();
        s.flash_info.drv_flash_io_count = 8;
        s.smart_info = new SmartInfo();
        s.smart_info.smart_valid = 1;
        assertEquals(NoSuchFieldError.class,
                     thrown(() -> jni.KX_SetSATADriveInformation("u", S, s)).getClass());
        Rec r = Rec.wrap(FakePernix.arg("KX_SetSATADriveInformation", 0, 2));
        assertEquals(4, r.i32(8));
        assertEquals(8, r.i32(28));
        assertEquals(1, r.i32(32));
        assertTrue(r.zero(36, 4));
        assertArrayEquals(S.session_id, FakePernix.arg("KX_SetSATADriveInformation", 0, 1));
    }
}
