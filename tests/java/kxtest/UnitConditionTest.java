package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import orvane.str.diskarray.NNCExtensionSlotStatus;
import orvane.str.diskarray.NNCPartsStatus;
import orvane.str.diskarray.UnitCondition;
import org.junit.Test;

public class UnitConditionTest extends BridgeTest {
    /** Background byte of the scripted record at offset i. */
    static int b(int i) {
        return (i * 31 + 7) & 0xFF;
    }

    /** The int[] a byte table of n bytes at off must become: each byte with its sign. */
    static int[] table(int off, int n) {
        int[] t = new int[n];
        for (int j = 0; j < n; j++) t[j] = (byte) b(off + j);
        return t;
    }

    /** A 1536-byte record: every byte patterned, then strings, ints and sign probes placed. */
    static byte[] condition() {
        Rec r = Rec.of(1536);
        for (int i = 0; i < 1536; i++) r.u8(i, b(i));
        r.put(0, cstr("MC-0001", 9)).put(9, cstr("MC-PAIR-02", 11)).i32(20, 32);
        for (int i = 0; i < 64; i++) r.i32(24 + 8 * i, 1000 + i).i32(28 + 8 * i, -i);
        r.u8(536, 0xFF);  // ps[0]
        r.u8(733, 0xFF).u8(734, 0x80);
        String[] texts = {"FL-0", "FLUSH-1", "192.168.10.1", "192.168.10.2", "255.255.255.0",
                "255.255.0.0", "192.168.10.254", "10.0.0.254"};
        int[] offs = {735, 742, 749, 765, 781, 797, 813, 829};
        int[] sizes = {7, 7, 16, 16, 16, 16, 16, 16};
        for (int k = 0; k < texts.length; k++) r.put(offs[k], cstr(texts[k], sizes[k]));
        r.str(742, "FLUSH-1");  // fills ctl1_flush to its last byte, ctl0_ip follows at once
        r.u8(845, 0xFF);
        r.put(916, cstr("SERIAL-0099", 12)).i32(928, 0x7FFFFFFF).i32(932, 3);
        for (int n = 0; n < 4; n++) {
            int base = 1036 + 92 * n;
            r.i32(base, 10 + n).u8(base + 21, 0xF0 + n).u8(base + 88, 0xE0 + n);
            for (int s = 0; s < 4; s++) {
                int slot = base + 24 + 16 * s;
                r.i32(slot, 100 * n + s).u8(slot + 4, 0x80 + s).u8(slot + 5, 0xC0 + s);
            }
        }
        r.i32(1532, 2);
        return r.bytes();
    }

    @Test
    public void theNativeHandsNameSessionAndIntToTheLibrary() {
        jni.KX_GetUnitCondition(repeat('x', 70), SessionTest.session(3), -42);
        assertCString(repeat('x', 70), 65, FakePernix.arg("KX_GetUnitCondition", 0, 0));
        assertArrayEquals(SessionTest.session(3).session_id, FakePernix.arg("KX_GetUnitCondition", 0, 1));
        assertEquals(-42, FakePernix.intArg("KX_GetUnitCondition", 0, 2));
        assertArrayEquals(new byte[1536], FakePernix.arg("KX_GetUnitCondition", 0, 3));
    }

    @Test
    public void everyFieldIsReadFromItsOffset() {
        FakePernix.willWrite("KX_GetUnitCondition", 3, condition());
        UnitCondition c = jni.KX_GetUnitCondition("unit", SessionTest.session(0), 0);

        assertEquals("MC-0001", c.micro);
        assertEquals("MC-PAIR-02", c.micro_pair);
        assertEquals(32, c.max_slot);
        assertEquals(32, c.cache.length);
        assertEquals(32, c.cache2.length);
        for (int i = 0; i < 32; i++) {
            assertEquals(1000 + i, c.cache[i].option);
            assertEquals(-i, c.cache[i].condition);
            assertEquals(1032 + i, c.cache2[i].option);
            assertEquals(-32 - i, c.cache2[i].condition);
        }
        int[] ps = table(536, 62);
        ps[0] = -1;
        assertArrayEquals(ps, c.ps);
        assertArrayEquals(table(598, 93), c.fan);
        assertArrayEquals(table(691, 2), c.ac);
        assertArrayEquals(table(693, 4), c.batt);
        assertArrayEquals(table(697, 2), c.batt_bk);
        assertArrayEquals(table(699, 2), c.optionBoard_2port);
        assertArrayEquals(table(701, 4), c.ctl0_port);
        assertArrayEquals(table(705, 4), c.ctl1_port);
        assertArrayEquals(table(709, 4), c.ctl0_port_type);
        assertArrayEquals(table(713, 4), c.ctl1_port_type);

        assertEquals(2, c.connector.length);
        for (int ctl = 0; ctl < 2; ctl++) {
            assertEquals(4, c.connector[ctl].length);
            for (int port = 0; port < 4; port++) {
                int off = 717 + 8 * ctl + 2 * port;
                assertArrayEquals(new byte[] {(byte) b(off), (byte) b(off + 1)}, c.connector[ctl][port]);
            }
        }

        assertEquals(-1, c.device_type);
        assertEquals(-128, c.device_type_KXM_sub_code);
        assertEquals("FL-0", c.ctl0_flush);
        assertEquals("FLUSH-1", c.ctl1_flush);
        assertEquals("192.168.10.1", c.ctl0_ip);
        assertEquals("192.168.10.2", c.ctl1_ip);
        assertEquals("255.255.255.0", c.ctl0_subnet);
        assertEquals("255.255.0.0", c.ctl1_subnet);
        assertEquals("192.168.10.254", c.ctl0_gateway);
        assertEquals("10.0.0.254", c.ctl1_gateway);
        assertEquals(255, c.controller_condition);
        assertArrayEquals(table(846, 62), c.enclosure);
        assertArrayEquals(table(908, 8), c.loop);
        assertEquals("SERIAL-0099", c.serial);
        assertEquals(0x7FFFFFFF, c.add_info_index);
        assertEquals(3, c.unit_count);
        assertArrayEquals(table(936, 31), c.unit_type);
        assertArrayEquals(table(967, 31), c.unit_type_sub_code);
        assertArrayEquals(table(998, 31), c.unit_kind);
        assertArrayEquals(table(1029, 4), c.nnc);

        assertEquals(4, c.nnc_parts.length);
        for (int n = 0; n < 4; n++) {
            NNCPartsStatus p = c.nnc_parts[n];
            int base = 1036 + 92 * n;
            assertEquals(10 + n, p.valid_index);
            assertArrayEquals(table(base + 4, 4), p.dimm);
            assertArrayEquals(table(base + 8, 2), p.ps);
            assertArrayEquals(table(base + 10, 3), p.fan);
            assertArrayEquals(table(base + 13, 8), p.connector);
            assertEquals(0xF0 + n, p.nnc_type);
            assertEquals(0xE0 + n, p.nnc_base);
            assertEquals(4, p.ext_slot.length);
            for (int s = 0; s < 4; s++) {
                NNCExtensionSlotStatus e = p.ext_slot[s];
                int slot = base + 24 + 16 * s;
                assertEquals(100 * n + s, e.valid_index);
                assertEquals(0x80 + s, e.card_state);
                assertEquals(0xC0 + s, e.card_type);
                assertArrayEquals(table(slot + 6, 8), e.connector_state);
            }
        }
        assertArrayEquals(table(1404, 128), c.function_revision);
        assertEquals(2, c.ctl_num);
    }

    @Test
    public void arraysAreBuiltAtFullCapacityWhateverTheCountsSay() {
        UnitCondition c = jni.KX_GetUnitCondition("unit", null, 0);
        assertArrayEquals("a null session sends an empty token", new byte[32],
                FakePernix.arg("KX_GetUnitCondition", 0, 1));
        assertEquals(0, c.max_slot);
        assertEquals(32, c.cache.length);
        assertEquals(32, c.cache2.length);
        assertEquals(4, c.nnc_parts.length);
        assertEquals(4, c.nnc_parts[3].ext_slot.length);
        assertEquals("", c.micro);
    }

    @Test
    public void everyAllocationFailureIsReported() throws Throwable {
        assertEachAllocationFailureReported(() -> jni.KX_GetUnitCondition("u", SessionTest.session(0), 1));
    }
}
