package kxtest;

import static kxtest.RaidGroupTest.S;
import static kxtest.RaidGroupTest.assertFields;
import static kxtest.RaidGroupTest.fill;
import static kxtest.RaidGroupTest.put;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import orvane.str.diskarray.*;
import org.junit.Test;

public class LogicalUnitTest extends BridgeTest {
    static final String[] LOGICAL_UNIT = {"luNumber", "rgNumber", "raid_level", "staging", "capacity",
        "befor_lun", "cachepart_no", "pair_cachepart_valid", "pair_cachepart_no", "current_cachepart_no",
        "stripe", "lu_use_type", "defaultCTL", "currentCTL", "status", "hostblock", "lu_valid", "qf_status",
        "correction_status", "rg_last_lu", "unit_type", "unit_type_sub_code"};
    static final String[] REALLOC = {"lun", "lusize", "newlun"};

    @Test
    public void unitsAreReadAsWholeRecordsAndTheListHoldsAll4096() {
        Rec list = put(put(Rec.of(4096 * 88), 0, 0, LOGICAL_UNIT), 4095 * 88, 4095, LOGICAL_UNIT);
        FakePernix.willWrite("KX_GetLogicalUnit", 2, list.bytes());
        LogicalUnit[] lus = jni.KX_GetLogicalUnit("u", S);
        assertEquals(4096, lus.length);
        assertFields(lus[0], 0, LOGICAL_UNIT);
        assertFields(lus[4095], 4095, LOGICAL_UNIT);
        assertEquals(0, lus[2000].lu_valid);
        FakePernix.willWrite("KX_GetLogicalUnit1", 3, put(Rec.of(88), 0, 77, LOGICAL_UNIT).bytes());
        assertFields(jni.KX_GetLogicalUnit1("u", S, 1), 77, LOGICAL_UNIT);
    }

    @Test
    public void addAndReallocSendWholeRecords() {
        jni.KX_LogicalUnitAdd("u", S, fill(new LogicalUnit(), 9, LOGICAL_UNIT));
        assertArrayEquals(put(Rec.of(88), 0, 9, LOGICAL_UNIT).bytes(), FakePernix.arg("KX_LogicalUnitAdd", 0, 2));
        jni.KX_LogicalUnitRealloc("u", fill(new LUReallocInfo(), 4, REALLOC));
        assertArrayEquals(put(Rec.of(12), 0, 4, REALLOC).bytes(), FakePernix.arg("KX_LogicalUnitRealloc", 0, 1));
    }

    @Test
    public void lastLogicalUnitIsTheIntTheLibraryStores() {
        FakePernix.willWriteInt("KX_GetLastLogicalUnit", 1, 1234);
        assertEquals(1234, jni.KX_GetLastLogicalUnit("unit"));
    }

    @Test
    public void blockToByteReturnsTheThreeOutputsInOrder() {
        FakePernix.willWriteInt("KX_BlockToByte", 3, 11);
        FakePernix.willWriteInt("KX_BlockToByte", 4, -22);
        FakePernix.willWriteInt("KX_BlockToByte", 5, 33);
        assertArrayEquals(new int[] {11, -22, 33}, jni.KX_BlockToByte(1, 2, 3));
        for (int i = 0; i < 3; i++) assertEquals(i + 1, FakePernix.intArg("KX_BlockToByte", 0, i));
    }
}
