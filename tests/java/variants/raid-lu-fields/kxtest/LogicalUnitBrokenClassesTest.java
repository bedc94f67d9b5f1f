package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.CreateRaidGroup;
import orvane.str.diskarray.CreateRgDrive;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.LogicalUnit;
import orvane.str.diskarray.RaidGroup;
import org.junit.Test;

/** Record classes that lack a field, have one of the wrong type or cannot be constructed. */
public class LogicalUnitBrokenClassesTest extends BridgeTest {
    @Test
    public void singleRecordGettersReport2817() {
        assertEquals(2817, code(() -> jni.KX_GetLogicalUnit1("u", new KXSessionInfo(), 1)));
        assertEquals(2817, code(() -> jni.KX_GetRaidGroupInformation("u", new KXSessionInfo())));
        assertEquals(2817, code(() -> jni.KX_GetRGAreaInformation("u", new KXSessionInfo(), 1)));
    }

    @Test
    public void listGettersStopWithoutAReport() {
        // The list ends at the first element that cannot be built; what Java sees
        // is the JVM's own error, not a DiskArrayException.
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_GetLogicalUnit("u", new KXSessionInfo())).getClass());
        assertEquals(NoSuchMethodError.class, thrown(() -> jni.KX_GetRaidGroups("u")).getClass());
        assertEquals(1, FakePernix.calls("KX_GetLogicalUnit"));
        assertEquals(1, FakePernix.calls("KX_GetRaidGroups"));
    }

    @Test
    public void readerStopsAtTheMissingFieldAndTheLibraryIsStillCalled() {
        LogicalUnit lu = new LogicalUnit();
        lu.luNumber = 5;
        lu.unit_type = 9;
        assertEquals(NoSuchFieldError.class,
            thrown(() -> jni.KX_LogicalUnitAdd("u", new KXSessionInfo(), lu)).getClass());
        Rec sent = Rec.wrap(FakePernix.arg("KX_LogicalUnitAdd", 0, 2));
        assertEquals(5, sent.i32(0));
        assertEquals(9, sent.i32(80));
        assertTrue(sent.zero(84, 4));

        RaidGroup rg = new RaidGroup(3);
        jni.KX_RaidGroupAdd("u", rg);
        assertEquals(3, Rec.wrap(FakePernix.arg("KX_RaidGroupAdd", 0, 1)).i32(0));
    }

    @Test
    public void driveListStopsAtTheFirstBrokenDrive() {
        CreateRaidGroup c = new CreateRaidGroup();
        c.parity_count = 4;
        c.rgdrv = new CreateRgDrive[3];
        for (int i = 0; i < 3; i++) {
            c.rgdrv[i] = new CreateRgDrive();
            c.rgdrv[i].unit_no = i + 1;
        }
        assertEquals(NoSuchFieldError.class,
            thrown(() -> jni.KX_CreateRaidGroup("u", new KXSessionInfo(), c)).getClass());
        Rec sent = Rec.wrap(FakePernix.arg("KX_CreateRaidGroup", 0, 2));
        assertEquals(4, sent.i32(24));
        assertEquals(1, sent.i32(28));
        assertTrue(sent.zero(32, 3600 - 4));
        // A result cannot be built while the input's error is pending: reported as 2817.
        assertEquals(2817, code(() -> jni.KX_GetRaidGroupCreationCapacity("u", new KXSessionInfo(), c)));
        assertEquals(1, FakePernix.calls("KX_GetRaidGroupCreationCapacity"));
    }
}
