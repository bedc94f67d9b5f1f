package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertNull;

import orvane.str.diskarray.DiscoverEntry;
import orvane.str.diskarray.DiscoverUnit;
import orvane.str.diskarray.KXUnitParam;
import org.junit.Test;

public class UnitRegistryTest extends BridgeTest {
    static KXUnitParam unit() {
        KXUnitParam u = new KXUnitParam();
        u.unit_name = repeat('u', 70);
        u.group_name = "group-name-16chr-extra";
        u.connect_type = -1;
        u.kx_type = 0x1C8;
        u.device_type = 200;
        u.unit_conf = 0x7F;
        u.alert = 0x80;
        u.ctl0 = "10.0.0.1";
        u.ctl1 = repeat('c', 90);
        u.serial = "SN12345678";
        return u;
    }

    /** The 256 bytes unit() must become: every member at its offset, cut to its width. */
    static byte[] unitRecord() {
        return Rec.of(256)
                .put(0, cstr(repeat('u', 70), 65))
                .put(65, cstr("group-name-16chr-extra", 17))
                .u8(82, 0xFF).u8(83, 0xC8).u8(84, 0xC8).u8(85, 0x7F).u8(86, 0x80)
                .put(87, cstr("10.0.0.1", 80))
                .put(167, cstr(repeat('c', 90), 80))
                .put(247, cstr("SN12345678", 9))
                .bytes();
    }

    @Test
    public void addAndChangeHandTheWholeRecordToTheLibrary() {
        jni.KX_UnitAdd(unit());
        jni.KX_UnitAddByIP(unit());
        jni.KX_UnitChange("unit-1", unit());
        jni.KX_UnitChangeByIP("unit-2", unit());
        assertArrayEquals(unitRecord(), FakePernix.arg("KX_UnitAdd", 0, 0));
        assertArrayEquals(unitRecord(), FakePernix.arg("KX_UnitAddByIP", 0, 0));
        assertCString("unit-1", 1024, FakePernix.arg("KX_UnitChange", 0, 0));
        assertArrayEquals(unitRecord(), FakePernix.arg("KX_UnitChange", 0, 1));
        assertCString("unit-2", 1024, FakePernix.arg("KX_UnitChangeByIP", 0, 0));
        assertArrayEquals(unitRecord(), FakePernix.arg("KX_UnitChangeByIP", 0, 1));
    }

    @Test
    public void addWithoutAnObjectSendsAnEmptyRecord() {
        jni.KX_UnitAdd(null);
        jni.KX_UnitAddByIP(null);
        assertArrayEquals(new byte[256], FakePernix.arg("KX_UnitAdd", 0, 0));
        assertArrayEquals(new byte[256], FakePernix.arg("KX_UnitAddByIP", 0, 0));
    }

    @Test
    public void aPartlyFilledObjectSendsWhatCouldBeRead() {
        KXUnitParam u = unit();
        u.group_name = null;  // reading stops here
        jni.KX_UnitAdd(u);
        byte[] expected = new byte[256];
        System.arraycopy(unitRecord(), 0, expected, 0, 65);
        assertArrayEquals(expected, FakePernix.arg("KX_UnitAdd", 0, 0));
    }

    @Test
    public void deleteAndReadUseTheShortNameBuffer() {
        jni.KX_UnitDelete(repeat('d', 70));
        jni.KX_GetUnitParam("unit-9");
        assertCString(repeat('d', 70), 65, FakePernix.arg("KX_UnitDelete", 0, 0));
        assertCString("unit-9", 65, FakePernix.arg("KX_GetUnitParam", 0, 0));
        assertArrayEquals("output record starts zero-filled", new byte[256], FakePernix.arg("KX_GetUnitParam", 0, 1));
    }

    @Test
    public void readUnitWidensDeviceTypeWithoutSignAndTheOtherCodesWithSign() {
        FakePernix.willWrite("KX_GetUnitParam", 1, Rec.of(256)
                .str(0, "unit-A").str(65, "grp")
                .u8(82, 0xFF).u8(83, 0xC8).u8(84, 0xFF).u8(85, 0x80).u8(86, 0x05)
                .str(87, "192.168.0.10").str(167, "192.168.0.11")
                .str(247, "123456789")  // fills the field to its last byte
                .bytes());
        KXUnitParam u = jni.KX_GetUnitParam("unit-A");
        assertEquals("unit-A", u.unit_name);
        assertEquals("grp", u.group_name);
        assertEquals(-1, u.connect_type);
        assertEquals(-56, u.kx_type);
        assertEquals(255, u.device_type);
        assertEquals(-128, u.unit_conf);
        assertEquals(5, u.alert);
        assertEquals("192.168.0.10", u.ctl0);
        assertEquals("192.168.0.11", u.ctl1);
        assertEquals("123456789", u.serial);
    }

    @Test
    public void unitCountIsReturnedAndMinusOneWhenNotReported() {
        FakePernix.willWriteInt("KX_GetUnitCount", 0, 17);
        assertEquals(17, jni.KX_GetUnitCount());
        FakePernix.willReturn("KX_GetUnitCount", 256);
        assertEquals(-1, jni.KX_GetUnitCount());
        FakePernix.willReturn("KX_GetUnitCount", 0x1234);
        assertEquals(0x1234, code(() -> jni.KX_GetUnitCount()));
    }

    @Test
    public void unitTableConvertsEveryRecordAtItsPlace() {
        Rec table = Rec.of(3 * 256);
        for (int i = 0; i < 3; i++) {
            table.str(256 * i, "unit-" + i).u8(256 * i + 84, 0xF0 + i).str(256 * i + 247, "S" + i);
        }
        FakePernix.willWrite("KX_GetUnitParamTable", 1, table.bytes());
        KXUnitParam[] units = jni.KX_GetUnitParamTable(3);
        assertEquals(3, FakePernix.intArg("KX_GetUnitParamTable", 0, 0));
        assertArrayEquals(new byte[3 * 256], FakePernix.arg("KX_GetUnitParamTable", 0, 1));
        assertEquals(3, units.length);
        for (int i = 0; i < 3; i++) {
            assertEquals("unit-" + i, units[i].unit_name);
            assertEquals(0xF0 + i, units[i].device_type);
            assertEquals("S" + i, units[i].serial);
        }
        assertEquals(0, jni.KX_GetUnitParamTable(0).length);
    }

    @Test
    public void unitTableFailures() {
        assertNull("a negative count is an allocation that fails", jni.KX_GetUnitParamTable(-1));
        FakePernix.failAllocation(1);
        assertNull(jni.KX_GetUnitParamTable(4));
        assertEquals("the library is not called without memory", 0, FakePernix.calls("KX_GetUnitParamTable"));

        FakePernix.reset();
        FakePernix.willReturn("KX_GetUnitParamTable", 256);
        assertNull(jni.KX_GetUnitParamTable(2));
        FakePernix.willReturn("KX_GetUnitParamTable", -9);
        assertEquals(-9, code(() -> jni.KX_GetUnitParamTable(2)));
    }

    @Test
    public void discoveryHandsTheEntryAndZeroExtendsTheAnswer() {
        DiscoverEntry e = new DiscoverEntry();
        e.connect_type = 300;
        e.ip_dev = repeat('i', 100);
        FakePernix.willWrite("KX_DiscoverUnitInformation", 1, Rec.of(94)
                .u8(0, 0xFF).str(1, "10.1.2.3").u8(81, 0x80).u8(82, 0xC8).u8(83, 0x7F).u8(84, 1)
                .str(85, "SER-0001").bytes());
        DiscoverUnit u = jni.KX_DiscoverUnitInformation(e);
        byte[] entry = Rec.of(81).u8(0, 300).put(1, cstr(repeat('i', 100), 80)).bytes();
        assertArrayEquals(entry, FakePernix.arg("KX_DiscoverUnitInformation", 0, 0));
        assertEquals(255, u.connect_type);
        assertEquals("10.1.2.3", u.ip_dev);
        assertEquals(128, u.kx_type);
        assertEquals(200, u.device_type);
        assertEquals(127, u.unit_conf);
        assertEquals(1, u.ctlno);
        assertEquals("SER-0001", u.serial);

        FakePernix.willWrite("KX_DiscoverUnitInformationEx", 1, Rec.of(94).u8(84, 0xFE).bytes());
        assertEquals(254, jni.KX_DiscoverUnitInformationEx(e).ctlno);
        assertArrayEquals(entry, FakePernix.arg("KX_DiscoverUnitInformationEx", 0, 0));
        assertEquals(1, FakePernix.calls("KX_DiscoverUnitInformation"));

        assertNotNull("no null test of the entry", jni.KX_DiscoverUnitInformationEx(null));
        assertArrayEquals(new byte[81], FakePernix.arg("KX_DiscoverUnitInformationEx", 1, 0));
    }

    @Test
    public void everyAllocationFailureIsReported() throws Throwable {
        assertEachAllocationFailureReported(() -> jni.KX_UnitAdd(unit()));
        assertEachAllocationFailureReported(() -> jni.KX_UnitChangeByIP("u", unit()));
        assertEachAllocationFailureReported(() -> jni.KX_GetUnitParam("u"));
        assertEachAllocationFailureReported(() -> jni.KX_DiscoverUnitInformation(new DiscoverEntry()));
    }
}
