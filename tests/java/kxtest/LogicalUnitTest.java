package kxtest;

import static kxtest.RaidGroupTest.assertFields;
import static kxtest.RaidGroupTest.assertInts;
import static kxtest.RaidGroupTest.fill;
import static kxtest.RaidGroupTest.put;
import static kxtest.RaidGroupTest.session;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.LUReallocInfo;
import orvane.str.diskarray.LogicalUnit;
import org.junit.Test;

public class LogicalUnitTest extends BridgeTest {
    static final String[] LOGICAL_UNIT = {"luNumber", "rgNumber", "raid_level", "staging", "capacity",
        "befor_lun", "cachepart_no", "pair_cachepart_valid", "pair_cachepart_no", "current_cachepart_no",
        "stripe", "lu_use_type", "defaultCTL", "currentCTL", "status", "hostblock", "lu_valid", "qf_status",
        "correction_status", "rg_last_lu", "unit_type", "unit_type_sub_code"};

    @Test
    public void logicalUnitListAlwaysHolds4096Units() {
        Rec list = Rec.of(4096 * 88);
        put(list, 0, 0, LOGICAL_UNIT);
        put(list, 1 * 88, 1, LOGICAL_UNIT);
        put(list, 4095 * 88, 4095, LOGICAL_UNIT);
        FakePernix.willWrite("KX_GetLogicalUnit", 2, list.bytes());

        LogicalUnit[] lus = jni.KX_GetLogicalUnit("unit-L", session(8));
        assertEquals(4096, lus.length);
        assertFields(lus[0], 0, LOGICAL_UNIT);
        assertFields(lus[1], 1, LOGICAL_UNIT);
        assertFields(lus[4095], 4095, LOGICAL_UNIT);
        assertEquals(0, lus[2000].lu_valid);
        assertCString("unit-L", 65, FakePernix.arg("KX_GetLogicalUnit", 0, 0));
        assertArrayEquals(session(8).session_id, FakePernix.arg("KX_GetLogicalUnit", 0, 1));
        assertEquals(4096 * 88, FakePernix.arg("KX_GetLogicalUnit", 0, 2).length);
    }

    @Test
    public void singleLogicalUnitByNumber() {
        FakePernix.willWrite("KX_GetLogicalUnit1", 3, put(Rec.of(88), 0, 77, LOGICAL_UNIT).bytes());
        LogicalUnit lu = jni.KX_GetLogicalUnit1("unit", session(1), 4095);
        assertFields(lu, 77, LOGICAL_UNIT);
        assertEquals(4095, FakePernix.intArg("KX_GetLogicalUnit1", 0, 2));
        assertEquals(88, FakePernix.arg("KX_GetLogicalUnit1", 0, 3).length);
    }

    @Test
    public void lastLogicalUnitIsTheIntTheLibraryStores() {
        FakePernix.willWriteInt("KX_GetLastLogicalUnit", 1, 1234);
        assertEquals(1234, jni.KX_GetLastLogicalUnit("unit"));
        assertCString("unit", 65, FakePernix.arg("KX_GetLastLogicalUnit", 0, 0));
        // 256: no exception, and 0 rather than what the library stored.
        FakePernix.willReturn("KX_GetLastLogicalUnit", 256);
        assertEquals(0, jni.KX_GetLastLogicalUnit("unit"));
        FakePernix.willReturn("KX_GetLastLogicalUnit", 77);
        assertEquals(77, code(() -> jni.KX_GetLastLogicalUnit("unit")));
    }

    @Test
    public void logicalUnitAddSendsEveryField() {
        jni.KX_LogicalUnitAdd("unit", session(5), fill(new LogicalUnit(), 9, LOGICAL_UNIT));
        assertArrayEquals(session(5).session_id, FakePernix.arg("KX_LogicalUnitAdd", 0, 1));
        Rec sent = Rec.wrap(FakePernix.arg("KX_LogicalUnitAdd", 0, 2));
        assertEquals(88, sent.size());
        assertInts(sent, 0, 9, LOGICAL_UNIT);

        jni.KX_LogicalUnitAdd("unit", null, null);
        assertArrayEquals(new byte[32], FakePernix.arg("KX_LogicalUnitAdd", 1, 1));
        assertTrue(Rec.wrap(FakePernix.arg("KX_LogicalUnitAdd", 1, 2)).zero(0, 88));
    }

    @Test
    public void reallocSendsItsThreeInts() {
        LUReallocInfo r = new LUReallocInfo();
        r.lun = 12;
        r.lusize = -2;
        r.newlun = 0x7FFFFFFF;
        jni.KX_LogicalUnitRealloc("unit", r);
        Rec sent = Rec.wrap(FakePernix.arg("KX_LogicalUnitRealloc", 0, 1));
        assertEquals(12, sent.size());
        assertEquals(12, sent.i32(0));
        assertEquals(-2, sent.i32(4));
        assertEquals(0x7FFFFFFF, sent.i32(8));
    }

    @Test
    public void commandsPassTheirIntsInOrder() {
        jni.KX_LogicalUnitDelete("a");
        jni.KX_LogicalUnitDeleteAll("b");
        jni.KX_LogicalUnitDeleteByLUN("c", session(3), 17);
        jni.KX_LogicalUnitExpand("d", 5, -6);
        jni.KX_LogicalUnitChangeStaging("e", session(4), 7, 8);
        jni.KX_LogicalUnitChangeCtl("f", session(5), 1);
        jni.KX_LogicalUnitInvalid("g", 9);
        jni.KX_LogicalUnitRestore("h", 10);
        assertArrayEquals(new String[] {"KX_LogicalUnitDelete", "KX_LogicalUnitDeleteAll",
            "KX_LogicalUnitDeleteByLUN", "KX_LogicalUnitExpand", "KX_LogicalUnitChangeStaging",
            "KX_LogicalUnitChangeCtl", "KX_LogicalUnitInvalid", "KX_LogicalUnitRestore"}, FakePernix.log());

        assertCString("a", 65, FakePernix.arg("KX_LogicalUnitDelete", 0, 0));
        assertCString("b", 65, FakePernix.arg("KX_LogicalUnitDeleteAll", 0, 0));
        assertArrayEquals(session(3).session_id, FakePernix.arg("KX_LogicalUnitDeleteByLUN", 0, 1));
        assertEquals(17, FakePernix.intArg("KX_LogicalUnitDeleteByLUN", 0, 2));
        assertEquals(5, FakePernix.intArg("KX_LogicalUnitExpand", 0, 1));
        assertEquals(-6, FakePernix.intArg("KX_LogicalUnitExpand", 0, 2));
        assertArrayEquals(session(4).session_id, FakePernix.arg("KX_LogicalUnitChangeStaging", 0, 1));
        assertEquals(7, FakePernix.intArg("KX_LogicalUnitChangeStaging", 0, 2));
        assertEquals(8, FakePernix.intArg("KX_LogicalUnitChangeStaging", 0, 3));
        assertArrayEquals(session(5).session_id, FakePernix.arg("KX_LogicalUnitChangeCtl", 0, 1));
        assertEquals(1, FakePernix.intArg("KX_LogicalUnitChangeCtl", 0, 2));
        assertCString("g", 65, FakePernix.arg("KX_LogicalUnitInvalid", 0, 0));
        assertEquals(9, FakePernix.intArg("KX_LogicalUnitInvalid", 0, 1));
        assertEquals(10, FakePernix.intArg("KX_LogicalUnitRestore", 0, 1));
    }

    @Test
    public void blockToByteReturnsTheThreeOutputsInOrder() {
        FakePernix.willWriteInt("KX_BlockToByte", 3, 11);
        FakePernix.willWriteInt("KX_BlockToByte", 4, -22);
        FakePernix.willWriteInt("KX_BlockToByte", 5, 33);
        assertArrayEquals(new int[] {11, -22, 33}, jni.KX_BlockToByte(1, 2, 3));
        assertEquals(1, FakePernix.intArg("KX_BlockToByte", 0, 0));
        assertEquals(2, FakePernix.intArg("KX_BlockToByte", 0, 1));
        assertEquals(3, FakePernix.intArg("KX_BlockToByte", 0, 2));

        FakePernix.willReturn("KX_BlockToByte", 256);
        assertNull(jni.KX_BlockToByte(1, 2, 3));
        FakePernix.willReturn("KX_BlockToByte", 0x0B02);
        assertEquals(0x0B02, code(() -> jni.KX_BlockToByte(1, 2, 3)));
    }

    @Test
    public void libraryResultsAreThrownUnchangedAnd256Quietly() {
        FakePernix.willReturn("KX_GetLogicalUnit", -4);
        assertEquals(-4, code(() -> jni.KX_GetLogicalUnit("u", session(0))));
        FakePernix.willReturn("KX_LogicalUnitAdd", 0x1F00);
        assertEquals(0x1F00, code(() -> jni.KX_LogicalUnitAdd("u", session(0), new LogicalUnit())));
        FakePernix.willReturn("KX_LogicalUnitDeleteAll", 3);
        assertEquals(3, code(() -> jni.KX_LogicalUnitDeleteAll("u")));

        FakePernix.willReturn("KX_GetLogicalUnit", 256);
        FakePernix.willReturn("KX_GetLogicalUnit1", 256);
        FakePernix.willReturn("KX_LogicalUnitRealloc", 256);
        assertNull(jni.KX_GetLogicalUnit("u", session(0)));
        assertNull(jni.KX_GetLogicalUnit1("u", session(0), 1));
        jni.KX_LogicalUnitRealloc("u", new LUReallocInfo());
    }

    @Test
    public void nullUnitNameIsRefusedBeforeTheLibrary() {
        Body[] calls = {
            () -> jni.KX_GetLogicalUnit(null, session(0)),
            () -> jni.KX_GetLogicalUnit1(null, session(0), 1),
            () -> jni.KX_GetLastLogicalUnit(null),
            () -> jni.KX_LogicalUnitAdd(null, session(0), new LogicalUnit()),
            () -> jni.KX_LogicalUnitDelete(null),
            () -> jni.KX_LogicalUnitDeleteAll(null),
            () -> jni.KX_LogicalUnitDeleteByLUN(null, session(0), 1),
            () -> jni.KX_LogicalUnitExpand(null, 1, 2),
            () -> jni.KX_LogicalUnitChangeStaging(null, session(0), 1, 2),
            () -> jni.KX_LogicalUnitChangeCtl(null, session(0), 1),
            () -> jni.KX_LogicalUnitInvalid(null, 1),
            () -> jni.KX_LogicalUnitRestore(null, 1),
            () -> jni.KX_LogicalUnitRealloc(null, new LUReallocInfo()),
        };
        for (Body b : calls) assertEquals(258, code(b));
        assertEquals(0, FakePernix.log().length);
        assertEquals(0, FakePernix.allocations());
    }

    @Test
    public void everyAllocationFailureIsReported() throws Throwable {
        assertEachAllocationFailureReported(() -> jni.KX_GetLogicalUnit("u", session(0)));
        assertEachAllocationFailureReported(() -> jni.KX_GetLogicalUnit1("u", session(0), 1));
        assertEachAllocationFailureReported(() -> jni.KX_LogicalUnitAdd("u", session(0), new LogicalUnit()));
        assertEachAllocationFailureReported(() -> jni.KX_LogicalUnitChangeStaging("u", session(0), 1, 2));
        assertEachAllocationFailureReported(() -> jni.KX_LogicalUnitRealloc("u", new LUReallocInfo()));
    }
}
