package kxtest;

import static kxtest.RaidGroupTest.S;
import static org.junit.Assert.*;

import java.util.Arrays;
import orvane.str.diskarray.*;
import org.junit.Test;

/** Fibre Channel port information, WWN tables, port options and target IDs. */
public class HostPortFibreTest extends BridgeTest {
    static final int FIBRE = 152636;
    static final int WWN = 297060;
    static final int WWNHG = 61508;
    static final int TARGET_ID = 8268;

    static String wwn(int ctl, int port, int i) {
        return String.format("5%03d%04d%08X", ctl * 10 + port, i, 0xC0FFEE00 + i).substring(0, 16);
    }

    /** A permission at off: node and port names, id, and a bitmap marked at both ends. */
    static void permission(Rec r, int off, int ctl, int port, int i, boolean withId) {
        r.str(off, wwn(ctl, port, i)).str(off + 17, wwn(ctl, port, i + 500));
        int bitmap = off + 34;
        if (withId) {
            r.str(off + 34, "0x" + (i % 10000));
            bitmap = off + 41;
        }
        r.u8(bitmap, i + 1).u8(bitmap + 255, 0x80 | ctl << 4 | port);
    }

    /** The record of one controller, every byte field at the top of its range. */
    static Rec fibre(int ctl) {
        Rec r = Rec.of(FIBRE).u8(0, 0xFF).i32(4, 0x0F - ctl);
        for (int i = 0; i < 4; i++) r.i32(8 + 4 * i, ctl * 100 + i).i32(24 + 4 * i, -(ctl * 100 + i));
        for (int p = 0; p < 4; p++) {
            int o = 40 + 68 * p;
            r.str(o, wwn(ctl, p, 0)).str(o + 17, repeat((char) ('a' + p), 16)).str(o + 34, "0x10" + p + ctl)
                .str(o + 41, "0xE" + p).u8(o + 48, 0xFF).u8(o + 49, 0x80).u8(o + 50, 8).u8(o + 51, 4)
                .u8(o + 52, 2 + ctl).i32(o + 56, 1 - p).i32(o + 60, 7 * p + 1).i32(o + 64, -7 * p - 2);
            int s = 312 + 51 * p;
            r.str(s, "BIU" + p + ctl).str(s + 9, "SEQ-0" + p).str(s + 18, "12345678").str(s + 27, "POST" + p)
                .str(s + 36, "ENDEC").str(s + 45, "4.3.2");
            int q = 516 + 38028 * p;
            r.u8(q, 0xFF).u8(q + 1, 0x80 + p).i32(q + 4, 128).i32(q + 8, -p);
            for (int i : new int[] {0, 1, 127}) permission(r, q + 12 + 297 * i, ctl, p, i, true);
        }
        return r.str(152628, "P" + ctl + "99");
    }

    static void assertFibre(int ctl, FibreInformation f) {
        assertArrayEquals(new int[] {-1, 0x0F - ctl, 4, 4, 4},
                new int[] {f.lun_security, f.port_valid, f.port.length, f.sfc.length, f.security.length});
        assertArrayEquals(new int[] {ctl * 100, ctl * 100 + 1, ctl * 100 + 2, ctl * 100 + 3}, f.topology);
        assertEquals(-(ctl * 100 + 3), f.topology_ref[3]);
        assertEquals("P" + ctl + "99", f.product_number);
        for (int p = 0; p < 4; p++) {
            FibreInformationPort port = f.port[p];
            assertArrayEquals(new Object[] {wwn(ctl, p, 0), repeat((char) ('a' + p), 16), "0x10" + p + ctl, "0xE" + p},
                    new Object[] {port.node_name, port.port_name, port.n_port_id, port.get_address});
            // unsigned bytes: 0xFF is 255
            assertArrayEquals(new int[] {255, 128, 8, 4, 2 + ctl, 1 - p, 2, 7 * p + 1, -7 * p - 2},
                    new int[] {port.frame_size, port.if_board, port.support_speed, port.set_speed, port.refer_speed,
                        port.connect_valid, port.connect.length, port.connect[0].topology_ref,
                        port.connect[1].topology_ref});
            FibreInformationSfc sfc = f.sfc[p];
            assertArrayEquals(new String[] {"BIU" + p + ctl, "SEQ-0" + p, "12345678", "POST" + p, "ENDEC", "4.3.2"},
                    new String[] {sfc.biu, sfc.sequence, sfc.oper_firmware, sfc.post_firmware, sfc.endec, sfc.fc_ph});
            FibreInformationSecurity sec = f.security[p];
            // signed bytes: 0xFF is -1, 0x80 is -128
            assertArrayEquals(new int[] {-1, (byte) (0x80 + p), 128, -p, 128},
                    new int[] {sec.access_guard, sec.all_lun_security, sec.permission_count, sec.security_chk_lv,
                        sec.permission.length});
            for (int i : new int[] {0, 127}) {
                FibreInformationPermission perm = sec.permission[i];
                assertEquals(wwn(ctl, p, i), perm.node_name);
                assertEquals(wwn(ctl, p, i + 500), perm.port_name);
                assertEquals("0x" + i, perm.n_port_id);
                assertEquals((byte) (i + 1), perm.lun_security_bitmap[0]);
                assertEquals((byte) (0x80 | ctl << 4 | p), perm.lun_security_bitmap[255]);
            }
            assertEquals("", sec.permission[64].node_name);
        }
    }

    @Test
    public void fibreInformationPairComesFromOneBlockAndGoesBackByteForByte() throws Throwable {
        byte[] ctl0 = fibre(0).bytes();
        byte[] ctl1 = fibre(1).bytes();
        FakePernix.willWrite("KX_GetFibreInformation", 2, ctl0);
        FakePernix.willWrite("KX_GetFibreInformation", 3, ctl1);
        FibreInformation[] got = jni.KX_GetFibreInformation("array-fc", S);
        assertEquals(2, got.length);
        assertFibre(0, got[0]);
        assertFibre(1, got[1]);
        assertEquals("the session and one block for both records", 2, FakePernix.allocations());

        jni.KX_SetFibreInformation("array-fc", S, got[0], got[1]);
        assertArrayEquals(ctl0, FakePernix.arg("KX_SetFibreInformation", 0, 2));
        assertArrayEquals(ctl1, FakePernix.arg("KX_SetFibreInformation", 0, 3));

        // Byte fields keep their low byte on the way in.
        got[0].lun_security = 0x12C;
        got[0].port[1].frame_size = -1;
        got[0].security[2].access_guard = 256 + 7;
        jni.KX_SetFibreInformation("u", S, got[0], null);
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetFibreInformation", 1, 2));
        assertArrayEquals(new int[] {0x2C, 0xFF, 7}, new int[] {sent.u8(0), sent.u8(40 + 68 + 48), sent.u8(516 + 2 * 38028)});
    }

    /** A Java tree with elements set at both ends and in the middle. */
    static FibreInformation fibreWith(int permissions) {
        FibreInformation f = new FibreInformation();
        f.topology = new int[] {1, 2, 3, 4};
        f.topology_ref = new int[] {5, 6, 7, 8};
        f.port = new FibreInformationPort[0];
        f.sfc = new FibreInformationSfc[0];
        f.security = new FibreInformationSecurity[5];  // one more than the record holds
        for (int q = 0; q < 5; q++) {
            FibreInformationSecurity sec = f.security[q] = new FibreInformationSecurity();
            sec.permission = new FibreInformationPermission[permissions];
            for (int i = 0; i < permissions; i++) {
                sec.permission[i] = new FibreInformationPermission();
                sec.permission[i].node_name = "n" + i;
                sec.permission[i].port_name = "p" + i;
                sec.permission[i].n_port_id = "i" + i;
                sec.permission[i].lun_security_bitmap[0] = (byte) i;
            }
        }
        f.product_number = "PN";
        return f;
    }

    @Test
    public void nestedTablesAreReadOverTheJavaLengthButNeverPastTheirCapacity() {
        // 200 permissions per port and 5 ports: 128 and 4 are read, the block's guards stay intact.
        FibreInformation f = fibreWith(200);
        jni.KX_SetFibreInformation("u", S, f, f);
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetFibreInformation", 0, 3));
        int lastPerm = 516 + 3 * 38028 + 12 + 127 * 297;
        assertEquals("n127", sent.str(lastPerm, 17));
        assertEquals(127, sent.u8(lastPerm + 41));
        assertEquals("PN", sent.str(152628, 5));
        assertEquals(8, sent.i32(36));
        // the ports and interfaces: empty Java arrays, nothing written
        assertTrue(sent.zero(40, 516 - 40));

        // A null String or a null element ends only that element.
        f = fibreWith(3);
        f.security[0].permission[0].port_name = null;
        f.security[1].permission[1] = null;
        jni.KX_SetFibreInformation("u", S, f, null);
        sent = Rec.wrap(FakePernix.arg("KX_SetFibreInformation", 1, 2));
        assertEquals("n0", sent.str(528, 17));
        assertTrue("reading stops at the null name", sent.zero(528 + 17, 297 - 17));
        assertEquals("n1", sent.str(528 + 297, 17));
        assertTrue(sent.zero(516 + 38028 + 12 + 297, 297));
        assertEquals("n2", sent.str(516 + 38028 + 12 + 2 * 297, 17));
        assertEquals("PN", sent.str(152628, 5));
    }

    @Test
    public void aJavaErrorWhileReadingStopsAllReadingButTheLibraryIsStillCalled() {
        FibreInformation f = fibreWith(3);
        FibreInformationSecurity broken = new FibreInformationSecurity();
        broken.permission = new FibreInformationPermission[] {new FibreInformationPermission(),
            f.security[0].permission[1]};
        broken.permission[0].node_name = "bad";
        broken.permission[0].port_name = "bad";
        broken.permission[0].n_port_id = "bad";
        broken.permission[0].lun_security_bitmap = new byte[3];  // too short
        f.security = new FibreInformationSecurity[] {f.security[0], broken, f.security[0]};
        FibreInformation second = fibreWith(1);
        assertEquals(ArrayIndexOutOfBoundsException.class,
                thrown(() -> jni.KX_SetFibreInformation("u", S, f, second)).getClass());
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetFibreInformation", 0, 2));
        assertEquals("n1", sent.str(528 + 297, 17));
        assertEquals("bad", sent.str(516 + 38028 + 12, 17));
        assertTrue("nothing after the failure", sent.zero(516 + 38028 + 12 + 41, FIBRE - (516 + 38028 + 12 + 41)));
        assertTrue("nor the second controller", Rec.wrap(FakePernix.arg("KX_SetFibreInformation", 0, 3)).zero(0, FIBRE));
        // a library error replaces the JVM's
        FakePernix.willReturn("KX_SetFibreInformation", 31);
        assertEquals(31, code(() -> jni.KX_SetFibreInformation("u", S, f, second)));
    }

    static Rec wwnInfo() {
        Rec r = Rec.of(WWN).i32(0, -2);
        for (int c = 0; c < 2; c++) {
            for (int p = 0; p < 4; p++) {
                int o = 4 + 148528 * c + 37132 * p;
                r.i32(o, c * 4 + p).i32(o + 4, 128 - p).i32(o + 8, -1);
                for (int i : new int[] {0, 127}) permission(r, o + 12 + 290 * i, c, p, i, false);
            }
        }
        return r;
    }

    @Test
    public void wwnTableTakesNoSessionAndIsAlwaysBuiltWhole() throws Throwable {
        byte[] rec = wwnInfo().bytes();
        FakePernix.willWrite("KX_GetWWNInformation", 1, rec);
        WWNInformation w = jni.KX_GetWWNInformation("array-w");
        assertEquals(-2, w.lun_security_opt);
        assertEquals(2, w.ctl.length);
        for (int c = 0; c < 2; c++) {
            assertEquals(4, w.ctl[c].port.length);
            for (int p = 0; p < 4; p++) {
                WWNPortInfo port = w.ctl[c].port[p];
                assertArrayEquals(new int[] {c * 4 + p, 128 - p, -1, 128},
                        new int[] {port.lun_security, port.permission_count, port.security_chk_lv, port.permission.length});
                assertEquals(wwn(c, p, 127), port.permission[127].node_name);
                assertEquals(wwn(c, p, 627), port.permission[127].port_name);
                assertEquals(-128, port.permission[127].lun_security_bitmap[0]);
                assertEquals((byte) (0x80 | c << 4 | p), port.permission[127].lun_security_bitmap[255]);
            }
        }

        jni.KX_SetWWNInformation("array-w", w);
        assertArrayEquals(rec, FakePernix.arg("KX_SetWWNInformation", 0, 1));
    }

    @Test
    public void wwnHostGroupFlagsAreUnsignedBytes() {
        Rec r = Rec.of(WWNHG).u8(0, 0xFF);
        int port = 4 + 30752 + 7688 * 3;  // controller 1, port 3
        r.u8(port, 0x80).i32(port + 4, 2);
        int host = port + 8 + 60 * 127;
        r.str(host, wwn(1, 3, 1)).str(host + 17, wwn(1, 3, 2)).u8(host + 34, 0xFE).i32(host + 36, 127)
            .str(host + 40, repeat('w', 16));
        FakePernix.willWrite("KX_GetWWNHGInformation", 2, r.bytes());
        WWNHGInformation hg = jni.KX_GetWWNHGInformation("u", S);
        assertEquals(255, hg.lun_manage);
        WWNHGPortInfo p = hg.ctl[1].port[3];
        assertArrayEquals(new int[] {128, 2, 128}, new int[] {p.security, p.wwn_count, p.wwn.length});
        WWNHostInfo h = p.wwn[127];
        assertArrayEquals(new Object[] {wwn(1, 3, 1), wwn(1, 3, 2), 254, 127, repeat('w', 16)},
                new Object[] {h.node_name, h.port_name, h.hostflag, h.hg_number, h.wname});
        assertEquals(0, hg.ctl[0].port[0].wwn[0].hostflag);

        jni.KX_SetWWNHGInformation("u", S, hg);
        assertArrayEquals(r.bytes(), FakePernix.arg("KX_SetWWNHGInformation", 0, 2));
        h.wname = repeat('x', 30);  // cut to its 16 characters
        jni.KX_SetWWNHGInformation("u", S, hg);
        assertArrayEquals(cstr(repeat('x', 16), 17), Rec.wrap(FakePernix.arg("KX_SetWWNHGInformation", 1, 2)).slice(host + 40, 17));
    }

    @Test
    public void portOptionCarriesTwoIndexRecordsAndTwoControllers() {
        Rec r = Rec.of(80).i32(0, 3).i32(4, -4).i32(8, 5).i32(12, -6);
        for (int i = 0; i < 16; i++) r.i32(16 + 4 * i, 1000 + i);
        FakePernix.willWrite("KX_GetPortOption", 2, r.bytes());
        PortOption o = jni.KX_GetPortOption("u", S);
        assertArrayEquals(new int[] {3, -4, 5, -6}, new int[] {o.support_index.lip_mode_valid_index,
            o.support_index.port_common_opt_valid_index, o.valid_index.lip_mode_valid_index,
            o.valid_index.port_common_opt_valid_index});
        assertArrayEquals(new int[] {1004, 1005, 1006, 1007}, o.ctl[0].port_common_opt);
        assertArrayEquals(new int[] {1008, 1009, 1010, 1011}, o.ctl[1].lip_mode);
        jni.KX_SetPortOption("u", S, o);
        assertArrayEquals(r.bytes(), FakePernix.arg("KX_SetPortOption", 0, 2));
    }

    static Rec targetId(int seed) {
        Rec r = Rec.of(TARGET_ID).i32(0, seed).i32(4, -seed);
        for (int t = 0; t < 4; t++) {
            int o = 8 + 2065 * t;
            r.u8(o, 0xF0 + t).u8(o + 1, 0xFF).u8(o + 16, seed + t);
            for (int m : new int[] {0, 15}) r.u8(o + 17 + 128 * m, 0x80 + m).u8(o + 17 + 128 * m + 127, seed + m);
        }
        return r;
    }

    static void assertTargetId(int seed, int ctrlFlag, int mode, Object[] configs) throws Exception {
        assertArrayEquals(new int[] {seed, -seed, 4}, new int[] {ctrlFlag, mode, configs.length});
        for (int t = 0; t < 4; t++) {
            Object cfg = configs[t];
            assertEquals((byte) (0xF0 + t), cfg.getClass().getField("single").getInt(cfg));
            byte[] multi = (byte[]) cfg.getClass().getField("multi").get(cfg);
            assertEquals(-1, multi[0]);
            assertEquals(seed + t, multi[15]);
            Object[] mapping = (Object[]) cfg.getClass().getField("mapping").get(cfg);
            assertEquals(16, mapping.length);
            for (int m : new int[] {0, 15}) {
                byte[] lun = (byte[]) mapping[m].getClass().getField("lun").get(mapping[m]);
                assertEquals((byte) (0x80 + m), lun[0]);
                assertEquals(seed + m, lun[127]);
            }
        }
    }

    @Test
    public void targetIdsTravelWithoutSessionAndImportFromFiles() throws Exception {
        FakePernix.willWrite("KX_GetTargetId", 2, targetId(3).bytes());
        FakePernix.willWrite("KX_GetTargetId", 3, targetId(9).bytes());
        TargetId[] ids = jni.KX_GetTargetId("array-t", -7);
        assertEquals(2, ids.length);
        assertTargetId(3, ids[0].ctrl_flag, ids[0].target_id_mode, ids[0].target_config);
        assertTargetId(9, ids[1].ctrl_flag, ids[1].target_id_mode, ids[1].target_config);
        assertEquals(-7, FakePernix.intArg("KX_GetTargetId", 0, 1));

        jni.KX_SetTargetId("array-t", 4, ids[1], -5);
        assertArrayEquals(targetId(9).bytes(), FakePernix.arg("KX_SetTargetId", 0, 2));
        assertArrayEquals(new int[] {4, -5}, new int[] {FakePernix.intArg("KX_SetTargetId", 0, 1),
            FakePernix.intArg("KX_SetTargetId", 0, 3)});

        String longPath = "/import/" + repeat('t', 1100);
        FakePernix.willWrite("KX_TargetIdImport", 3, targetId(5).bytes());
        ids = jni.KX_TargetIdImport("array-t", longPath);
        assertCString(longPath, 1024, FakePernix.arg("KX_TargetIdImport", 0, 1));
        assertEquals(0, ids[0].ctrl_flag);
        assertTargetId(5, ids[1].ctrl_flag, ids[1].target_id_mode, ids[1].target_config);

        FakePernix.willWrite("KX_WZTargetIdImport", 4, targetId(6).bytes());
        FakePernix.willWrite("KX_WZTargetIdImport", 5, targetId(7).bytes());
        WZTargetId[] wz = jni.KX_WZTargetIdImport("array-t", "/a/first", "/a/second", 12);
        assertEquals(WZTargetConfig.class, wz[0].target_config[0].getClass());
        assertEquals(WZTargetLunList.class, wz[0].target_config[0].mapping[0].getClass());
        assertTargetId(6, wz[0].ctrl_flag, wz[0].target_id_mode, wz[0].target_config);
        assertTargetId(7, wz[1].ctrl_flag, wz[1].target_id_mode, wz[1].target_config);
        assertCString("/a/first", 1024, FakePernix.arg("KX_WZTargetIdImport", 0, 1));
        assertCString("/a/second", 1024, FakePernix.arg("KX_WZTargetIdImport", 0, 2));
        assertEquals(12, FakePernix.intArg("KX_WZTargetIdImport", 0, 3));
    }

    @Test
    public void targetIdCallsAllocateOneBlockAndReadAFreshObject() throws Throwable {
        // Target-ID calls allocate one block and no session.
        jni.KX_GetTargetId("u", 0);
        assertEquals(1, FakePernix.allocations());
        // A target record read from a fresh object: ints and bytes of an empty table.
        TargetId t = new TargetId();
        t.ctrl_flag = 1;
        t.target_config = new TargetConfig[] {new TargetConfig()};
        t.target_config[0].single = 0x1FF;  // low byte only
        t.target_config[0].multi[3] = 9;
        jni.KX_SetTargetId("u", 0, t, 0);
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetTargetId", 0, 2));
        assertArrayEquals(new int[] {1, 0xFF, 9}, new int[] {sent.i32(0), sent.u8(8), sent.u8(12)});
        assertTrue(sent.zero(25, TARGET_ID - 25));
    }
}
