package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertSame;

import orvane.str.diskarray.*;
import org.junit.Test;

/** Host groups: names, delete and reset selections, host-connection options and their parameter tables. */
public class HostGroupTest extends BridgeTest {
    static final KXSessionInfo S = SessionTest.session(21);

    // ---- names

    static int hgPort(int c, int p) {
        return 1 + c * 9220 + p * 2305;
    }

    static int hgEntry(int c, int p, int h) {
        return hgPort(c, p) + 1 + h * 18;
    }

    @Test
    public void hostGroupListIsBuiltInFullWithBytesWidenedWithoutSign() {
        Rec r = Rec.of(18441).u8(0, 200);
        r.u8(hgPort(0, 0), 1).u8(hgEntry(0, 0, 0), 1).str(hgEntry(0, 0, 0) + 1, "G000");
        r.u8(hgPort(1, 3), 0xFF).u8(hgEntry(1, 3, 127), 0x80).str(hgEntry(1, 3, 127) + 1, "ABCDEFGHIJKLMNOPQ");
        r.str(hgEntry(1, 2, 5) + 1, "mid");
        FakePernix.willWrite("KX_GetHGList", 2, r.bytes());

        HGList l = jni.KX_GetHGList("u", S);
        assertEquals(200, l.lun_manage);
        assertEquals(2, l.ctl.length);
        for (HGCtlInfo c : l.ctl) {
            assertEquals(4, c.port.length);
            for (HGPortInfo p : c.port) assertEquals(128, p.hg.length);
        }
        assertArrayEquals(new Object[] {1, 1, "G000"},
                          new Object[] {l.ctl[0].port[0].security, l.ctl[0].port[0].hg[0].valid, l.ctl[0].port[0].hg[0].hgname});
        // A name filling all 17 bytes is cut at the end of its buffer, not run into the next entry.
        assertArrayEquals(new Object[] {255, 128, "ABCDEFGHIJKLMNOPQ"},
                          new Object[] {l.ctl[1].port[3].security, l.ctl[1].port[3].hg[127].valid,
                                        l.ctl[1].port[3].hg[127].hgname});
        assertEquals("mid", l.ctl[1].port[2].hg[5].hgname);
        assertEquals("", l.ctl[0].port[1].hg[64].hgname);
    }

    @Test
    public void hostGroupNamesAreCutToTheirBuffer() {
        HGConfig cfg = new HGConfig();
        cfg.hgname = "ABCDEFGHIJKLMNOPQRST";
        jni.KX_CreateHG("u", S, 0, 0, 1, cfg);
        assertCString("ABCDEFGHIJKLMNOP", 17, FakePernix.arg("KX_CreateHG", 0, 5));
        cfg.hgname = "host-b";
        jni.KX_ChangeHG("u", S, 0, 0, 1, cfg);
        assertCString("host-b", 17, FakePernix.arg("KX_ChangeHG", 0, 5));
    }

    // ---- delete and reset selections

    static DeleteHGList deleteList(int controllers, int ports) {
        DeleteHGList l = new DeleteHGList();
        l.ctl = new DeleteHGCtlList[controllers];
        for (int c = 0; c < controllers; c++) {
            l.ctl[c] = new DeleteHGCtlList();
            l.ctl[c].port = new DeleteHGPortList[ports];
            for (int p = 0; p < ports; p++) {
                l.ctl[c].port[p] = new DeleteHGPortList();
                for (int h = 0; h < 128; h++) l.ctl[c].port[p].hg[h] = (byte) (c * 64 + p * 16 + h);
            }
        }
        return l;
    }

    static byte[] selection(int controllers, int ports) {
        Rec r = Rec.of(1024);
        for (int c = 0; c < Math.min(controllers, 2); c++)
            for (int p = 0; p < Math.min(ports, 4); p++)
                for (int h = 0; h < 128; h++) r.u8(c * 512 + p * 128 + h, c * 64 + p * 16 + h);
        return r.bytes();
    }

    @Test
    public void selectionsAreReadOverTheJavaArraysUpToTheirCapacity() {
        jni.KX_DeleteHGList("u", S, deleteList(2, 4));
        assertArrayEquals(selection(2, 4), FakePernix.arg("KX_DeleteHGList", 0, 2));
        // One controller: the second stays as allocated.  Too many: the extra ones are not read.
        jni.KX_DeleteHGList("u", S, deleteList(1, 4));
        assertArrayEquals(selection(1, 4), FakePernix.arg("KX_DeleteHGList", 1, 2));
        jni.KX_DeleteHGList("u", S, deleteList(3, 6));
        assertArrayEquals(selection(2, 4), FakePernix.arg("KX_DeleteHGList", 2, 2));

        // A null element or a null array ends only that element; a longer byte[] gives its first 128.
        DeleteHGList gaps = deleteList(2, 4);
        gaps.ctl[0].port[1] = null;
        gaps.ctl[0].port[2].hg = null;
        gaps.ctl[1].port[0].hg = new byte[300];
        gaps.ctl[1].port[0].hg[127] = 9;
        gaps.ctl[1].port[0].hg[128] = 10;
        jni.KX_DeleteHGList("u", S, gaps);
        Rec expected = Rec.wrap(selection(2, 4));
        for (int i = 0; i < 128; i++) expected.u8(128 + i, 0).u8(256 + i, 0).u8(512 + i, i == 127 ? 9 : 0);
        assertArrayEquals(expected.bytes(), FakePernix.arg("KX_DeleteHGList", 3, 2));
    }

    @Test
    public void aSelectionThatRaisesStopsAllReadingAndTheJvmErrorSurfaces() {
        InitHGList l = new InitHGList();
        l.ctl = new InitHGCtlList[] {new InitHGCtlList(), new InitHGCtlList()};
        for (InitHGCtlList c : l.ctl) {
            c.port = new InitHGPortList[] {new InitHGPortList(), new InitHGPortList()};
            for (InitHGPortList p : c.port) p.hg[0] = 7;
        }
        l.ctl[0].port[1].hg = new byte[10];  // too short: the copy raises
        Throwable t = thrown(() -> jni.KX_InitHGList("u", S, l));
        assertEquals(ArrayIndexOutOfBoundsException.class, t.getClass());
        assertEquals(1, FakePernix.calls("KX_InitHGList"));
        byte[] expected = new byte[1024];
        expected[0] = 7;  // ctl 0 port 0 only: nothing after the failure, controller 1 included
        assertArrayEquals(expected, FakePernix.arg("KX_InitHGList", 0, 2));
    }

    // ---- options

    static int optPort(int c, int p) {
        return 36 + c * 32672 + p * 8168;
    }

    /** An option record whose every int differs; security bytes 0x80+, pad bytes 0x5A (never read back). */
    static Rec optionRecord() {
        Rec r = Rec.of(65380);
        for (int i = 0; i < 8; i++) r.i32(4 * i, 0x01010101 * (i + 1));
        r.i32(32, -5);
        for (int c = 0; c < 2; c++)
            for (int p = 0; p < 4; p++) {
                int o = optPort(c, p);
                r.u8(o, 0x80 + c * 4 + p).u8(o + 1, 0x5A).u8(o + 2, 0x5A).u8(o + 3, 0x5A).i32(o + 4, 255 - p);
                for (int h = 0; h < 255; h++)
                    for (int f = 0; f < 8; f++) r.i32(o + 8 + 32 * h + 4 * f, (c << 28) | (p << 24) | (h << 8) | f);
            }
        return r;
    }

    @Test
    public void optionsTravelBothWaysAndPadBytesAreNeverCopied() {
        Rec rec = optionRecord();
        FakePernix.willWrite("KX_GetHGOptionAll", 2, rec.bytes());
        HGOption o = jni.KX_GetHGOptionAll("u", S);
        assertArrayEquals(new int[] {0x01010101, 0x02020202, 0x03030303, 0x04040404},
            new int[] {o.support_index.option_valid_index, o.support_index.option2_valid_index[0],
                o.support_index.option2_valid_index[1], o.support_index.option3_valid_index});
        assertEquals(0x08080808, o.valid_index.option3_valid_index);
        assertEquals(-5, o.HostGroupValid);
        assertEquals(2, o.ctl.length);
        HGOptionPortInfo last = o.ctl[1].port[3];
        assertArrayEquals(new int[] {4, 255, 0x87, 252},
                          new int[] {o.ctl[1].port.length, last.hg.length, last.security, last.hg_tg_max_count});
        HGOptionInfo h = last.hg[254];
        int base = (1 << 28) | (3 << 24) | (254 << 8);
        assertArrayEquals(new int[] {base, base | 1, base | 2, base | 3, base | 4, base | 5, base | 6, base | 7},
            new int[] {h.option, h.option2[0], h.option2[1], h.option3, h.platform_id, h.alternate_path_id,
                h.failover_id, h.special_mode_id});

        jni.KX_SetHGOptionAll("u", S, o);
        for (int c = 0; c < 2; c++)
            for (int p = 0; p < 4; p++) rec.u8(optPort(c, p) + 1, 0).u8(optPort(c, p) + 2, 0).u8(optPort(c, p) + 3, 0);
        assertArrayEquals(rec.bytes(), FakePernix.arg("KX_SetHGOptionAll", 0, 2));

        // Only the low byte of security goes back.
        o.ctl[0].port[0].security = 300;
        jni.KX_SetHGOptionAll("u", S, o);
        assertEquals(44, Rec.wrap(FakePernix.arg("KX_SetHGOptionAll", 1, 2)).u8(optPort(0, 0)));
    }

    @Test
    public void oneHostGroupsOptionsTravelBothWays() {
        Rec rec = Rec.of(32);
        for (int f = 0; f < 8; f++) rec.i32(4 * f, f % 2 == 0 ? -f - 1 : 0x7FFF0000 + f);
        FakePernix.willWrite("KX_GetHGOption", 5, rec.bytes());
        HGOptionInfo info = jni.KX_GetHGOption("u", S, 0, 1, 2);
        assertArrayEquals(new int[] {-1, 0x7FFF0001}, new int[] {info.option, info.option2[0]});
        jni.KX_SetHGOption("u", S, 1, 2, 3, info);
        assertArrayEquals(rec.bytes(), FakePernix.arg("KX_SetHGOption", 0, 5));
    }

    // ---- parameter tables

    /** name bytes: text, a NUL, then bytes that must reach byte[] but not the String. */
    static byte[] nameBytes(String text, int n) {
        byte[] b = new byte[n];
        byte[] t = text.getBytes(java.nio.charset.StandardCharsets.ISO_8859_1);
        System.arraycopy(t, 0, b, 0, Math.min(t.length, n));
        if (t.length + 2 < n) b[n - 1] = 'Z';
        return b;
    }

    static void assertName(byte[] raw, byte[] bytes, String str) {
        assertArrayEquals(raw, bytes);
        int len = 0;
        while (len < raw.length && raw[len] != 0) len++;
        assertEquals(new String(raw, 0, len), str);  // the JVM's default charset
    }

    @Test
    public void parameterIdsDeliverEachNameAsBytesAndAsText() {
        Rec r = Rec.of(6016).i32(0, 3).i32(724, 20).i32(1448, 0).i32(2172, 30);
        byte[] plat0 = nameBytes("Windows", 31);
        byte[] plat19 = nameBytes("ABCDEFGHIJKLMNOPQRSTUVWXYZ01234", 31);  // fills every byte
        byte[] alt = nameBytes("caf\u00e9 \u00c0", 31);                       // not ASCII
        byte[] fail = nameBytes("Fail-over", 31);
        byte[] special = nameBytes("special mode with a long name", 121);
        r.i32(4, 11).put(8, plat0).i32(4 + 19 * 36, -1).put(8 + 19 * 36, plat19);
        r.i32(728 + 36, 12).put(732 + 36, alt);
        r.i32(1452 + 19 * 36, 13).put(1456 + 19 * 36, fail);
        r.i32(2176 + 29 * 128, 14).put(2180 + 29 * 128, special).u8(2176 + 29 * 128 + 125, 0x77);
        FakePernix.willWrite("KX_GetHGParameterID", 3, r.bytes());

        HGParameterID ids = jni.KX_GetHGParameterID("u", S, 2);
        assertArrayEquals(new int[] {3, 20, 0, 30, 20, 20, 20, 30},
            new int[] {ids.plat_id_count, ids.altpath_id_count, ids.fail_id_count, ids.special_id_count,
                ids.platform.length, ids.alternatepath.length, ids.failover.length, ids.specialmode.length});
        assertEquals(11, ids.platform[0].platform_id);
        assertName(plat0, ids.platform[0].platform_name, ids.platform[0].platform_name_str);
        assertEquals(-1, ids.platform[19].platform_id);
        assertName(plat19, ids.platform[19].platform_name, ids.platform[19].platform_name_str);
        assertEquals(12, ids.alternatepath[1].alternate_path_id);
        assertName(alt, ids.alternatepath[1].alternate_path_name, ids.alternatepath[1].alternate_path_name_str);
        assertEquals(13, ids.failover[19].failover_id);
        assertName(fail, ids.failover[19].failover_name, ids.failover[19].failover_name_str);
        assertEquals(14, ids.specialmode[29].specialmode_id);
        assertName(special, ids.specialmode[29].specialmode_name, ids.specialmode[29].specialmode_name_str);
        assertEquals("", ids.failover[0].failover_name_str);
    }

    @Test
    public void parameterListIsBuiltInFullToTheDeepestOptions() {
        Rec r = Rec.of(292448).i32(0, 2).i32(291364, 1);
        int plat = 4 + 19 * 14568, alt = plat + 8 + 19 * 728, fail = alt + 8 + 19 * 36;
        r.i32(plat, 101).i32(plat + 4, 20).i32(alt, 102).i32(alt + 4, 20).i32(fail, 103);
        for (int f = 0; f < 8; f++) r.i32(fail + 4 + 4 * f, 1000 + f);
        int special = 291368 + 29 * 36;
        r.i32(special, 104).i32(special + 4 + 28, 2000);
        FakePernix.willWrite("KX_GetHGParameterList", 2, r.bytes());

        HGParameterList l = jni.KX_GetHGParameterList("u", S);
        assertArrayEquals(new int[] {2, 20, 1, 30}, new int[] {l.platform_count, l.platinfo.length,
            l.special_mode_count, l.specialinfo.length});
        PlatformInfo p = l.platinfo[19];
        AlternatePathInfo a = p.altpathinfo[19];
        FailoverInfo f = a.failinfo[19];
        assertArrayEquals(new int[] {101, 20, 20, 102, 20, 20, 103},
            new int[] {p.platform_id, p.alternate_path_count, p.altpathinfo.length, a.alternate_path_id,
                a.failover_count, a.failinfo.length, f.failover_id});
        assertArrayEquals(new int[] {1000, 1001, 1002, 1003, 1004, 1005, 1006, 1007},
            new int[] {f.hgoptinfo.option, f.hgoptinfo.option2[0], f.hgoptinfo.option2[1], f.hgoptinfo.option3,
                f.hgoptinfo.platform_id, f.hgoptinfo.alternate_path_id, f.hgoptinfo.failover_id,
                f.hgoptinfo.special_mode_id});
        assertArrayEquals(new int[] {104, 2000},
                          new int[] {l.specialinfo[29].specialmode_id, l.specialinfo[29].hgoptinfo.special_mode_id});
        assertNotNull(l.platinfo[0].altpathinfo[0].failinfo[0].hgoptinfo);
        assertSame(HGOptionInfo.class, l.specialinfo[0].hgoptinfo.getClass());
    }
}
