package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.*;
import org.junit.Test;

/** Mapping of host LU numbers to internal LUs, the mapping mode and the mapping guard. */
public class HostGroupMappingTest extends BridgeTest {
    static final KXSessionInfo S = SessionTest.session(33);
    static final int SIZE = 2089036;

    static int port(int c, int p) {
        return 12 + c * 1044512 + p * 261128;
    }

    static int lu(int c, int p, int h, int i) {
        int v = (c << 28) | (p << 24) | (h << 9) | i;
        return (i & 1) == 0 ? v : -v;
    }

    /** A full mapping: every LU number differs; security 0x90+, pad bytes 0xA7 (never read back). */
    static Rec mapping() {
        Rec r = Rec.of(SIZE).i32(0, 1).i32(4, -2).i32(8, 3);
        for (int c = 0; c < 2; c++)
            for (int p = 0; p < 4; p++) {
                int o = port(c, p);
                r.u8(o, 0x90 + 4 * c + p).u8(o + 1, 0xA7).u8(o + 2, 0xA7).u8(o + 3, 0xA7).i32(o + 4, 100 + p);
                for (int h = 0; h < 255; h++)
                    for (int i = 0; i < 256; i++) r.i32(o + 8 + 1024 * h + 4 * i, lu(c, p, h, i));
            }
        return r;
    }

    static Rec withoutPads(Rec r) {
        for (int c = 0; c < 2; c++)
            for (int p = 0; p < 4; p++) r.u8(port(c, p) + 1, 0).u8(port(c, p) + 2, 0).u8(port(c, p) + 3, 0);
        return r;
    }

    @Test
    public void fullMappingIsBuiltInFullAndSentBackByteForByte() {
        Rec rec = mapping();
        FakePernix.willWrite("KX_GetLuMappingListAll", 2, rec.bytes());
        LuMapping m = jni.KX_GetLuMappingListAll("u", S);
        assertArrayEquals(new int[] {1, -2, 3, 2}, new int[] {m.HostGroupValid, m.ctrl_flag, m.mapping_mode, m.ctl.length});
        for (int c = 0; c < 2; c++) {
            assertEquals(4, m.ctl[c].port.length);
            for (int p = 0; p < 4; p++) {
                LuMappingPortInfo pi = m.ctl[c].port[p];
                assertArrayEquals(new int[] {0x90 + 4 * c + p, 100 + p, 255},
                                  new int[] {pi.security, pi.hg_tg_max_count, pi.hg.length});
                for (int h = 0; h < 255; h++) {
                    assertEquals(256, pi.hg[h].lu.length);
                    for (int i = 0; i < 256; i++)
                        if (pi.hg[h].lu[i] != lu(c, p, h, i)) assertEquals(c + "/" + p + "/" + h + "/" + i, lu(c, p, h, i), pi.hg[h].lu[i]);
                }
            }
        }
        jni.KX_SetLuMappingListAll("u", S, m);
        assertArrayEquals(withoutPads(rec).bytes(), FakePernix.arg("KX_SetLuMappingListAll", 0, 2));
    }

    @Test
    public void longerJavaArraysAreReadOnlyUpToTheCapacity() {
        FakePernix.willWrite("KX_GetLuMappingListAll", 2, mapping().bytes());
        LuMapping m = jni.KX_GetLuMappingListAll("u", S);
        LuMappingPortInfo extraPort = new LuMappingPortInfo();
        extraPort.security = 1;
        extraPort.hg = new LuMappingHGInfo[] {new LuMappingHGInfo()};
        java.util.Arrays.fill(extraPort.hg[0].lu, 0x11111111);
        LuMappingCtlInfo extraCtl = new LuMappingCtlInfo();
        extraCtl.port = new LuMappingPortInfo[] {extraPort};
        m.ctl = new LuMappingCtlInfo[] {m.ctl[0], m.ctl[1], extraCtl};
        m.ctl[1].port = java.util.Arrays.copyOf(m.ctl[1].port, 6);
        m.ctl[1].port[4] = extraPort;
        LuMappingHGInfo[] hg = java.util.Arrays.copyOf(m.ctl[1].port[3].hg, 300);
        for (int h = 255; h < 300; h++) hg[h] = extraPort.hg[0];
        m.ctl[1].port[3].hg = hg;
        int[] longLu = java.util.Arrays.copyOf(hg[254].lu, 400);
        java.util.Arrays.fill(longLu, 256, 400, 0x22222222);
        hg[254].lu = longLu;
        jni.KX_SetLuMappingListAll("u", S, m);  // the seam's guard bytes catch a write past the record
        assertArrayEquals(withoutPads(mapping()).bytes(), FakePernix.arg("KX_SetLuMappingListAll", 0, 2));
    }

    @Test
    public void aTableThatRaisesStopsAllReadingWhileANullOneEndsOnlyItself() {
        FakePernix.willWrite("KX_GetLuMappingListAll", 2, mapping().bytes());
        LuMapping m = jni.KX_GetLuMappingListAll("u", S);
        m.ctl[0].port[0].hg[1].lu = null;  // ends that table only
        m.ctl[0].port[0].hg[2] = null;     // ends that element only
        jni.KX_SetLuMappingListAll("u", S, m);
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetLuMappingListAll", 0, 2));
        int hg = port(0, 0) + 8;
        assertTrue(sent.zero(hg + 1024, 2048));
        assertEquals(lu(0, 0, 3, 0), sent.i32(hg + 3 * 1024));
        assertEquals(lu(1, 3, 254, 255), sent.i32(SIZE - 4));

        m.ctl[0].port[1].hg[0].lu = new int[10];  // too short: the copy raises
        assertEquals(ArrayIndexOutOfBoundsException.class,
                     thrown(() -> jni.KX_SetLuMappingListAll("u", S, m)).getClass());
        sent = Rec.wrap(FakePernix.arg("KX_SetLuMappingListAll", 1, 2));
        assertEquals(lu(0, 0, 254, 255), sent.i32(port(0, 1) - 4));
        assertEquals(0x91, sent.u8(port(0, 1)));  // read before the table that raised
        assertTrue(sent.zero(port(0, 1) + 8, SIZE - port(0, 1) - 8));  // nothing after it, controller 1 included
    }

    @Test
    public void oneHostGroupsMappingComesWithItsCountAsAnInteger() throws Throwable {
        Rec table = Rec.of(1024);
        for (int i = 0; i < 256; i++) table.i32(4 * i, lu(1, 2, 3, i));
        FakePernix.willWrite("KX_GetLuMappingList", 6, table.bytes());
        for (int count : new int[] {5, -3, 256}) {
            FakePernix.willWriteInt("KX_GetLuMappingList", 5, count);
            Object[] pair = jni.KX_GetLuMappingList("u", S, 1, 2, 3);
            assertEquals(2, pair.length);
            assertEquals(Integer.valueOf(count), pair[0]);
            int[] expected = new int[256];
            for (int i = 0; i < 256; i++) expected[i] = lu(1, 2, 3, i);
            assertArrayEquals(expected, ((LuMappingHGInfo) pair[1]).lu);
        }
        FakePernix.willWriteInt("KX_GetLuMappingList", 5, 0);
        Object[] none = jni.KX_GetLuMappingList("u", S, 1, 2, 3);
        assertNull(none[0]);
        assertEquals(LuMappingHGInfo.class, none[1].getClass());
        // The count and table live in the frame: the session is the one record allocated.
        assertEquals(4, FakePernix.allocations());
        assertEquals(4, FakePernix.arg("KX_GetLuMappingList", 0, 5).length);
        assertEquals(1024, FakePernix.arg("KX_GetLuMappingList", 0, 6).length);
    }

    @Test
    public void oneHostGroupsMappingIsSentWhole() {
        LuMappingHGInfo t = new LuMappingHGInfo();
        for (int i = 0; i < 256; i++) t.lu[i] = lu(0, 3, 7, i);
        jni.KX_SetLuMappingList("u", S, 1, 2, 3, 4, t);
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetLuMappingList", 0, 6));
        for (int i = 0; i < 256; i++) assertEquals(lu(0, 3, 7, i), sent.i32(4 * i));
        // A table too short raises; the library is called with the record as allocated.
        t.lu = new int[255];
        assertEquals(ArrayIndexOutOfBoundsException.class,
                     thrown(() -> jni.KX_SetLuMappingList("u", S, 1, 2, 3, 4, t)).getClass());
        assertTrue(Rec.wrap(FakePernix.arg("KX_SetLuMappingList", 1, 6)).zero(0, 1024));
    }

    @Test
    public void mappingGuardTravelsBothWaysAsRawBytes() {
        Rec guard = Rec.of(4096);
        for (int i = 0; i < 4096; i++) guard.u8(i, i * 7);
        FakePernix.willWrite("KX_GetMappingGuardList", 2, guard.bytes());
        MappingGuardList g = jni.KX_GetMappingGuardList("u", S);
        assertArrayEquals(guard.bytes(), g.lumap_guard);
        g.lumap_guard[4095] = (byte) 0x80;
        jni.KX_SetMappingGuardList("u", S, g);
        assertArrayEquals(guard.u8(4095, 0x80).bytes(), FakePernix.arg("KX_SetMappingGuardList", 0, 2));
    }
}
