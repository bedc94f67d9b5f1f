package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.*;
import org.junit.Test;

/**
 * Record classes that lack a field, hold one with another type or cannot be
 * constructed: the single-record getters report 2817; the lists that end
 * quietly leave the JVM's own error to the caller; readers stop at the broken
 * field and the library is called all the same.
 */
public class RaidBrokenClassesTest extends BridgeTest {
    static final KXSessionInfo S = new KXSessionInfo();

    @Test
    public void singleGettersReport2817AndListsEndWithTheJvmsOwnError() {
        assertEquals(2817, code(() -> jni.KX_GetLogicalUnit1("u", S, 1)));
        assertEquals(2817, code(() -> jni.KX_GetRaidGroupInformation("u", S)));
        assertEquals(2817, code(() -> jni.KX_GetDriveInformation("u", S, 0, 0)));
        assertEquals(2817, code(() -> jni.KX_GetSATADriveInformation("u", S)));
        assertEquals(2817, code(() -> jni.KX_GetSpinDownUpInformation("u", S)));
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_GetLogicalUnit("u", S)).getClass());
        assertEquals(NoSuchMethodError.class, thrown(() -> jni.KX_GetRaidGroups("u")).getClass());
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_GetDriveInformationAll("u", S)).getClass());
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_GetDriveStatus("u", S)).getClass());
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_LogicalUnitFormatStatusList("u")).getClass());
        FakePernix.willReturn("KX_GetDriveStatus", 9);  // a library error still wins
        assertEquals(9, code(() -> jni.KX_GetDriveStatus("u", S)));
    }

    @Test
    public void readersStopAtTheBrokenField() {
        LogicalUnit lu = new LogicalUnit();
        lu.luNumber = 5;
        lu.unit_type = 9;
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_LogicalUnitAdd("u", S, lu)).getClass());
        Rec sent = Rec.wrap(FakePernix.arg("KX_LogicalUnitAdd", 0, 2));
        assertEquals(5, sent.i32(0));
        assertEquals(9, sent.i32(80));
        assertTrue(sent.zero(84, 4));

        jni.KX_RaidGroupAdd("u", new RaidGroup(3));  // reading needs no constructor
        assertEquals(3, Rec.wrap(FakePernix.arg("KX_RaidGroupAdd", 0, 1)).i32(0));
    }

    @Test
    public void aPlannedGroupsDriveListEndsAtTheFirstBrokenDrive() {
        CreateRaidGroup c = new CreateRaidGroup();
        c.parity_count = 4;
        c.rgdrv = new CreateRgDrive[] {new CreateRgDrive(), new CreateRgDrive()};
        c.rgdrv[0].unit_no = 1;
        c.rgdrv[1].unit_no = 2;
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_CreateRaidGroup("u", S, c)).getClass());
        Rec sent = Rec.wrap(FakePernix.arg("KX_CreateRaidGroup", 0, 2));
        assertEquals(4, sent.i32(24));
        assertEquals(1, sent.i32(28));
        assertTrue(sent.zero(32, 3600 - 4));
        // A result cannot be built while the input's error is pending: reported as 2817.
        assertEquals(2817, code(() -> jni.KX_GetRaidGroupCreationCapacity("u", S, c)));
        assertEquals(1, FakePernix.calls("KX_GetRaidGroupCreationCapacity"));
    }
}
