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

    static Object field(Object o, String name) throws ReflectiveOperationException {
        return o.getClass().getField(name).get(o);
    }

    static int[] concat(int[]... parts) {
        return java.util.Arrays.stream(parts).flatMapToInt(java.util.Arrays::stream).toArray();
    }

    static final Object[][] TABLES = {{"ps", 536, 62}, {"fan", 598, 93}, {"ac", 691, 2}, {"batt", 693, 4},
        {"batt_bk", 697, 2}, {"optionBoard_2port", 699, 2}, {"ctl0_port", 701, 4}, {"ctl1_port", 705, 4},
        {"ctl0_port_type", 709, 4}, {"ctl1_port_type", 713, 4}, {"enclosure", 846, 62}, {"loop", 908, 8},
        {"unit_type", 936, 31}, {"unit_type_sub_code", 967, 31}, {"unit_kind", 998, 31}, {"nnc", 1029, 4},
        {"function_revision", 1404, 128}};
    static final Object[][] TEXTS = {{"micro", 0, 9, "MC-0001"}, {"micro_pair", 9, 11, "MC-PAIR-02"},
        {"ctl0_flush", 735, 7, "FL-0"}, {"ctl1_flush", 742, 7, "FLUSH-1"},  // fills its field to the last byte
        {"ctl0_ip", 749, 16, "192.168.10.1"}, {"ctl1_ip", 765, 16, "192.168.10.2"},
        {"ctl0_subnet", 781, 16, "255.255.255.0"}, {"ctl1_subnet", 797, 16, "255.255.0.0"},
        {"ctl0_gateway", 813, 16, "192.168.10.254"}, {"ctl1_gateway", 829, 16, "10.0.0.254"},
        {"serial", 916, 12, "SERIAL-0099"}};

    /** A 1536-byte record: every byte patterned, then strings, ints and sign probes placed. */
    static byte[] condition() {
        Rec r = Rec.of(1536);
        for (int i = 0; i < 1536; i++) r.u8(i, b(i));
        for (Object[] t : TEXTS) r.put((int) t[1], cstr((String) t[3], (int) t[2]));
        r.str(742, "FLUSH-1").i32(20, 5).i32(928, 0x7FFFFFFF).i32(932, 3).i32(1532, 2);
        for (int i = 0; i < 64; i++) r.i32(24 + 8 * i, 1000 + i).i32(28 + 8 * i, -i);
        r.u8(733, 0xFF).u8(734, 0x80).u8(845, 0xFF);  // the one-byte codes
        for (int n = 0; n < 4; n++) {
            int base = 1036 + 92 * n;
            r.i32(base, 10 + n).u8(base + 21, 0xF0 + n).u8(base + 88, 0xE0 + n);
            for (int s = 0; s < 4; s++) {
                int slot = base + 24 + 16 * s;
                r.i32(slot, 100 * n + s).u8(slot + 4, 0x80 + s).u8(slot + 5, 0xC0 + s);
            }
        }
        return r.bytes();
    }

    @Test
    public void everyFieldIsReadFromItsOffsetAndEveryArrayBuiltAtFullCapacity() throws Throwable {
        FakePernix.willWrite("KX_GetUnitCondition", 3, condition());
        UnitCondition c = jni.KX_GetUnitCondition(repeat('x', 70), SessionTest.session(3), -42);
        assertCString(repeat('x', 70), 65, FakePernix.arg("KX_GetUnitCondition", 0, 0));
        assertEquals(-42, FakePernix.intArg("KX_GetUnitCondition", 0, 2));
        assertArrayEquals(new byte[1536], FakePernix.arg("KX_GetUnitCondition", 0, 3));

        for (Object[] t : TEXTS) assertEquals((String) t[0], t[3], field(c, (String) t[0]));
        for (Object[] t : TABLES) {
            assertArrayEquals((String) t[0], table((int) t[1], (int) t[2]), (int[]) field(c, (String) t[0]));
        }
        assertArrayEquals(new int[] {5, -1, -128, 255, 0x7FFFFFFF, 3, 2}, new int[] {c.max_slot, c.device_type,
            c.device_type_KXM_sub_code, c.controller_condition, c.add_info_index, c.unit_count, c.ctl_num});
        assertArrayEquals("whatever the counts say", new int[] {32, 32, 4, 4},
                new int[] {c.cache.length, c.cache2.length, c.nnc_parts.length, c.nnc_parts[3].ext_slot.length});
        for (int i = 0; i < 32; i++) {
            assertArrayEquals(new int[] {1000 + i, -i, 1032 + i, -32 - i},
                    new int[] {c.cache[i].option, c.cache[i].condition, c.cache2[i].option, c.cache2[i].condition});
        }
        byte[][][] connector = new byte[2][4][2];
        for (int i = 0; i < 16; i++) connector[i / 8][i / 2 % 4][i % 2] = (byte) b(717 + i);
        assertArrayEquals("controller, port, byte; signs kept", connector, c.connector);
        for (int n = 0; n < 4; n++) {
            NNCPartsStatus p = c.nnc_parts[n];
            int base = 1036 + 92 * n;
            assertArrayEquals(new int[] {10 + n, 0xF0 + n, 0xE0 + n}, new int[] {p.valid_index, p.nnc_type, p.nnc_base});
            assertArrayEquals(concat(table(base + 4, 4), table(base + 8, 2), table(base + 10, 3), table(base + 13, 8)),
                    concat(p.dimm, p.ps, p.fan, p.connector));
            for (int s = 0; s < 4; s++) {
                NNCExtensionSlotStatus e = p.ext_slot[s];
                assertArrayEquals(concat(new int[] {100 * n + s, 0x80 + s, 0xC0 + s}, table(base + 30 + 16 * s, 8)),
                        concat(new int[] {e.valid_index, e.card_state, e.card_type}, e.connector_state));
            }
        }
    }
}
