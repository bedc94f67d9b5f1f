package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;

import orvane.str.diskarray.DiscoverEntry;
import orvane.str.diskarray.DiscoverUnit;
import orvane.str.diskarray.KXUnitParam;
import org.junit.Test;

public class UnitRegistryTest extends BridgeTest {
    static KXUnitParam unit() {
        KXUnitParam u = new KXUnitParam();
        u.unit_name = repeat('u', 70); u.group_name = "group-name-16chr-extra";
        u.connect_type = -1; u.kx_type = 0x1C8; u.device_type = 200; u.unit_conf = 0x7F; u.alert = 0x80;
        u.ctl0 = "10.0.0.1"; u.ctl1 = repeat('c', 90); u.serial = "SN12345678";
        return u;
    }

    /** The 256 bytes unit() must become: every member at its offset, cut to its width. */
    static final byte[] UNIT = Rec.of(256)
            .put(0, cstr(repeat('u', 70), 65)).put(65, cstr("group-name-16chr-extra", 17))
            .u8(82, 0xFF).u8(83, 0xC8).u8(84, 0xC8).u8(85, 0x7F).u8(86, 0x80)
            .put(87, cstr("10.0.0.1", 80)).put(167, cstr(repeat('c', 90), 80)).put(247, cstr("SN12345678", 9))
            .bytes();

    @Test
    public void addChangeDeleteHandNameAndRecordInTheLibrarysOrder() throws Throwable {
        jni.KX_UnitAdd(unit());
        jni.KX_UnitAddByIP(unit());
        jni.KX_UnitChange(repeat('n', 1100), unit());
        jni.KX_UnitChangeByIP("unit-2", unit());
        jni.KX_UnitDelete(repeat('d', 70));
        assertArrayEquals(UNIT, FakePernix.arg("KX_UnitAdd", 0, 0));
        assertArrayEquals(UNIT, FakePernix.arg("KX_UnitAddByIP", 0, 0));
        assertCString(repeat('n', 1100), 1024, FakePernix.arg("KX_UnitChange", 0, 0));
        assertArrayEquals(UNIT, FakePernix.arg("KX_UnitChange", 0, 1));
        assertCString("unit-2", 1024, FakePernix.arg("KX_UnitChangeByIP", 0, 0));
        assertArrayEquals(UNIT, FakePernix.arg("KX_UnitChangeByIP", 0, 1));
        assertCString(repeat('d', 70), 65, FakePernix.arg("KX_UnitDelete", 0, 0));
    }

    @Test
    public void readUnitWidensDeviceTypeWithoutSignAndTheOtherCodesWithSign() {
        FakePernix.willWrite("KX_GetUnitParam", 1, Rec.of(256)
                .str(0, "unit-A").str(65, "grp").u8(82, 0xFF).u8(83, 0xC8).u8(84, 0xFF).u8(85, 0x80).u8(86, 5)
                .str(87, "192.168.0.10").str(167, "192.168.0.11")
                .str(247, "123456789")  // fills the field to its last byte
                .bytes());
        KXUnitParam u = jni.KX_GetUnitParam(repeat('g', 70));
        assertCString(repeat('g', 70), 65, FakePernix.arg("KX_GetUnitParam", 0, 0));
        assertEquals("unit-A/grp/192.168.0.10/192.168.0.11/123456789",
                String.join("/", u.unit_name, u.group_name, u.ctl0, u.ctl1, u.serial));
        assertArrayEquals(new int[] {-1, -56, 255, -128, 5},
                new int[] {u.connect_type, u.kx_type, u.device_type, u.unit_conf, u.alert});
    }

    @Test
    public void countAndTableHaveTheirOwnFailureValues() {
        FakePernix.willWriteInt("KX_GetUnitCount", 0, 17);
        assertEquals(17, jni.KX_GetUnitCount());

        Rec table = Rec.of(3 * 256);
        for (int i = 0; i < 3; i++) table.str(256 * i, "unit-" + i).u8(256 * i + 84, 0xF0 + i);
        FakePernix.willWrite("KX_GetUnitParamTable", 1, table.bytes());
        KXUnitParam[] units = jni.KX_GetUnitParamTable(3);
        assertEquals(3, FakePernix.intArg("KX_GetUnitParamTable", 0, 0));
        assertArrayEquals(new byte[3 * 256], FakePernix.arg("KX_GetUnitParamTable", 0, 1));
        assertEquals(3, units.length);
        for (int i = 0; i < 3; i++) {
            assertEquals("unit-" + i, units[i].unit_name);
            assertEquals(0xF0 + i, units[i].device_type);
        }
        assertEquals(0, jni.KX_GetUnitParamTable(0).length);
        // Without memory (a negative count included) the table is null, unreported, the library not called.
        FakePernix.reset();
        assertNull(jni.KX_GetUnitParamTable(-1));
        FakePernix.failAllocation(1);
        assertNull(jni.KX_GetUnitParamTable(4));
        assertEquals(0, FakePernix.calls("KX_GetUnitParamTable"));
    }

    @Test
    public void discoveryHandsTheEntryAndZeroExtendsTheAnswer() throws Throwable {
        DiscoverEntry e = new DiscoverEntry();
        e.connect_type = 300; e.ip_dev = repeat('i', 100);
        FakePernix.willWrite("KX_DiscoverUnitInformation", 1, Rec.of(94)
                .u8(0, 0xFF).str(1, "10.1.2.3").u8(81, 0x80).u8(82, 0xC8).u8(83, 0x7F).u8(84, 1)
                .str(85, "SER-0001").bytes());
        DiscoverUnit u = jni.KX_DiscoverUnitInformation(e);
        byte[] entry = Rec.of(81).u8(0, 300).put(1, cstr(repeat('i', 100), 80)).bytes();
        assertArrayEquals(entry, FakePernix.arg("KX_DiscoverUnitInformation", 0, 0));
        assertEquals("10.1.2.3/SER-0001", u.ip_dev + "/" + u.serial);
        assertArrayEquals(new int[] {255, 128, 200, 127, 1},
                new int[] {u.connect_type, u.kx_type, u.device_type, u.unit_conf, u.ctlno});

        FakePernix.willWrite("KX_DiscoverUnitInformationEx", 1, Rec.of(94).u8(84, 0xFE).bytes());
        assertEquals(254, jni.KX_DiscoverUnitInformationEx(e).ctlno);
        assertArrayEquals(entry, FakePernix.arg("KX_DiscoverUnitInformationEx", 0, 0));
    }
}
