package kxtest;

import static kxtest.PoolsTest.P;
import static kxtest.RaidGroupTest.S;
import static kxtest.RaidGroupTest.assertFields;
import static kxtest.RaidGroupTest.put;
import static kxtest.RaidGroupTest.value;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.*;
import org.junit.Test;

/** The set-up wizard: the whole initial configuration, the current settings and the LU set-up output. */
public class PoolsWizardTest extends BridgeTest {
    static final String[] DUAL_HEAD = {"startup_attr", "data_share", "spare_disk", "connection_mode"};
    static final String[] DUAL_TAIL = {"delay_time", "hp2_support", "add_bat_unit"};
    static final String[] OPTION = {"common", "scsi", "fibre"};
    static final String[] MODE_PARAM = {"striping", "buzzer", "lu_size_report", "reset", "failures"};
    static final String[] INQUIRY_HEAD = {"command_que", "ansi_version", "cache_mode"};

    /** The byte of mapping list m of target config c of target id t at index i. */
    static byte lun(int t, int c, int m, int i) {
        return (byte) (t * 97 + c * 31 + m * 7 + i);
    }

    /** A whole WizardParam record with a distinct value in every field. */
    static Rec wizard() {
        Rec r = Rec.of(17164).i32(0, 0x01020304);
        put(r, 4, 1, DUAL_HEAD).str(4 + 16, "SER-0001");
        r.put(4 + 25, new byte[] {1, (byte) 0x80, (byte) 0xFF, 44});
        r.i32(4 + 32, -33);
        for (int i = 0; i < 4; i++) r.i32(4 + 36 + 4 * i, 100 + i).i32(4 + 52 + 4 * i, -200 - i);
        put(r, 4 + 68, 2, DUAL_TAIL);
        for (int i = 0; i < 6; i++) r.i32(84 + 4 * i, 1000 * (i + 1));
        r.i32(84 + 24, 7);
        put(put(put(r, 112, 3, OPTION), 124, 4, OPTION), 136, 5, OPTION);
        for (int t = 0; t < 2; t++) {
            int id = 148 + 8268 * t;
            r.i32(id, t + 10).i32(id + 4, -(t + 10));
            for (int c = 0; c < 4; c++) {
                int tc = id + 8 + 2065 * c;
                r.u8(tc, 0xF0 + c);
                for (int i = 0; i < 16; i++) r.u8(tc + 1 + i, t * 16 + c * 4 + i);
                for (int m = 0; m < 16; m++)
                    for (int i = 0; i < 128; i++) r.u8(tc + 17 + 128 * m + i, lun(t, c, m, i));
            }
        }
        put(r, 16684, 6, MODE_PARAM);
        put(r, 16704, 7, INQUIRY_HEAD).str(16704 + 12, "VENDOR01").str(16704 + 21, "PRODUCT-0123456")
            .str(16704 + 38, "R1").str(16704 + 41, "M2").str(16704 + 44, "A web title of 32 characters....")
            .i32(16704 + 80, 8);
        for (int p = 0; p < 2; p++) {
            int o = 16788 + 68 * p;
            r.i32(o, 20 + p);
            for (int i = 0; i < 4; i++) r.i32(o + 4 + 4 * i, 30 + 10 * p + i);
            for (int i = 0; i < 4; i++) put(r, o + 20 + 12 * i, 40 + 4 * p + i, OPTION);
        }
        for (int p = 0; p < 2; p++) {
            int o = 16924 + 20 * p;
            r.i32(o, 50 + p);
            for (int i = 0; i < 4; i++) r.i32(o + 4 + 4 * i, -(60 + 10 * p + i));
        }
        for (int p = 0; p < 2; p++) {
            int o = 16964 + 24 * p;
            r.i32(o, 70 + p).str(o + 4, "FRONT00" + p).str(o + 13, "R" + p).i32(o + 16, 71 + p).i32(o + 20, 72 + p);
        }
        for (int p = 0; p < 2; p++) {
            int o = 17012 + 68 * p;
            r.u8(o, 200 + p).u8(o + 1, 255 - p).str(o + 2, "192.168.100.20" + p).str(o + 18, "255.255.255.0")
                .str(o + 34, "192.168.100.1").str(o + 50, "00:11:22:33:44:5" + p);
        }
        for (int p = 0; p < 2; p++)
            for (int i = 0; i < 4; i++) r.u8(17148 + 8 * p + 2 * i, 200 + p * 4 + i).u8(17148 + 8 * p + 2 * i + 1, 250 - i);
        return r;
    }

    @Test
    public void wizardParamIsReadWholeAndSentBackByteForByte() {
        Rec rec = wizard();
        FakePernix.willWrite("KX_GetWizardParam", 3, rec.bytes());
        WizardParam w = jni.KX_GetWizardParam("u", P, 1);

        assertEquals(0x01020304, w.fd_backup);
        assertFields(w.dual_conf, 1, DUAL_HEAD);
        assertEquals("SER-0001", w.dual_conf.serial);
        assertArrayEquals(new int[] {1, -128, -1, 44}, w.dual_conf.port_d_ctl);
        assertEquals(-33, w.dual_conf.id_taking_over);
        assertArrayEquals(new int[][] {{100, 101}, {102, 103}}, w.dual_conf.port_cnnct_mode1);
        assertArrayEquals(new int[][] {{-200, -201}, {-202, -203}}, w.dual_conf.port_cnnct_mode2);
        assertFields(w.dual_conf, 2, DUAL_TAIL);
        assertArrayEquals(new int[] {1000, 2000, 3000, 4000, 5000, 6000}, w.drive_capacity.row);
        assertEquals(7, w.drive_capacity.spare);
        assertFields(w.option, 3, OPTION);
        assertFields(w.e_option, 4, OPTION);
        assertFields(w.e_option2, 5, OPTION);

        assertEquals(2, w.target_id.length);
        for (int t = 0; t < 2; t++) {
            assertEquals(t + 10, w.target_id[t].ctrl_flag);
            assertEquals(4, w.target_id[t].target_config.length);
            for (int c = 0; c < 4; c++) {
                WZTargetConfig tc = w.target_id[t].target_config[c];
                assertEquals((byte) (0xF0 + c), tc.single);  // signed
                assertEquals((byte) (t * 16 + c * 4 + 15), tc.multi[15]);
                assertEquals(16, tc.mapping.length);
                for (int m = 0; m < 16; m++) {
                    assertEquals(128, tc.mapping[m].lun.length);
                    assertEquals(lun(t, c, m, 0), tc.mapping[m].lun[0]);
                    assertEquals(lun(t, c, m, 127), tc.mapping[m].lun[127]);
                }
            }
        }
        assertFields(w.mode_param, 6, MODE_PARAM);
        assertFields(w.inquiry, 7, INQUIRY_HEAD);
        assertArrayEquals(new Object[] {"VENDOR01", "PRODUCT-0123456", "R1", "M2", "A web title of 32 characters....", 8},
            new Object[] {w.inquiry.vendor, w.inquiry.product, w.inquiry.rom_micro, w.inquiry.ram_micro,
                w.inquiry.web_title, w.inquiry.link_separation});
        assertEquals(2, w.port_type.length);
        assertArrayEquals(new int[] {40, 41, 42, 43}, w.port_type[1].port_mode);
        assertEquals(4, w.port_type[1].port_option.length);
        assertFields(w.port_type[1].port_option[3], 47, OPTION);
        assertArrayEquals(new int[] {-70, -71, -72, -73}, w.rom_response[1].port_save_data);
        assertArrayEquals(new Object[] {71, "FRONT001", "R1", 72, 73}, new Object[] {w.ctl_opt[1].id_mode,
            w.ctl_opt[1].id_front, w.ctl_opt[1].id_rear, w.ctl_opt[1].error_out_mode, w.ctl_opt[1].write_verify_mode});
        // lan_connect, dhcp_mode and rate come back unsigned, board_type and single signed.
        assertArrayEquals(new Object[] {200, 255, "192.168.100.200", "255.255.255.0", "192.168.100.1", "00:11:22:33:44:50"},
            new Object[] {w.lan_conf[0].lan_connect, w.lan_conf[0].dhcp_mode, w.lan_conf[0].ip_address,
                w.lan_conf[0].subnet, w.lan_conf[0].gateway, w.lan_conf[0].ether});
        assertEquals(254, w.lan_conf[1].dhcp_mode);
        assertEquals(2, w.sync_control.length);
        assertEquals(4, w.sync_control[1].port_val.length);
        assertArrayEquals(new int[] {-56, 250, -49, 247}, new int[] {w.sync_control[0].port_val[0].board_type,
            w.sync_control[0].port_val[0].rate, w.sync_control[1].port_val[3].board_type, w.sync_control[1].port_val[3].rate});

        // The record goes back whole, record before path.
        jni.KX_SetWizardParam("u", w, P, 2);
        jni.KX_TestWizardParam("u", w, P, 3);
        assertArrayEquals(rec.bytes(), FakePernix.arg("KX_SetWizardParam", 0, 1));
        assertArrayEquals(rec.bytes(), FakePernix.arg("KX_TestWizardParam", 0, 1));
    }

    @Test
    public void byteFieldsKeepTheLowByteOnly() {
        FakePernix.willWrite("KX_GetWizardParam", 3, wizard().bytes());
        WizardParam w = jni.KX_GetWizardParam("u", P, 1);
        w.dual_conf.port_d_ctl = new int[] {300, -1, 256, 0x7F};
        w.lan_conf[1].lan_connect = 0x1C8;  // 200
        w.sync_control[0].port_val[1].board_type = -56;
        w.target_id[1].target_config[2].single = 200;
        jni.KX_SetWizardParam("u", w, P, 0);
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetWizardParam", 0, 1));
        assertArrayEquals(new int[] {44, 0xFF, 0, 0x7F},
                          new int[] {sent.u8(29), sent.u8(30), sent.u8(31), sent.u8(32)});
        assertEquals(200, sent.u8(17012 + 68));
        assertEquals(200, sent.u8(17148 + 2));
        assertEquals(200, sent.u8(148 + 8268 + 8 + 2065 * 2));

        FakePernix.willWrite("KX_GetWizardParam", 3, sent.bytes());
        WizardParam back = jni.KX_GetWizardParam("u", P, 1);
        assertArrayEquals(new int[] {44, -1, 0, 0x7F}, back.dual_conf.port_d_ctl);
        assertEquals(200, back.lan_conf[1].lan_connect);
        assertEquals(-56, back.sync_control[0].port_val[1].board_type);
        assertEquals(-56, back.target_id[1].target_config[2].single);
    }

    @Test
    public void wizardArraysAreReadOverTheirJavaLengthUpToTheirCapacity() {
        FakePernix.willWrite("KX_GetWizardParam", 3, wizard().bytes());
        WizardParam w = jni.KX_GetWizardParam("u", P, 1);
        WZTargetId extra = w.target_id[0];
        w.target_id = new WZTargetId[] {w.target_id[0], w.target_id[1], extra};
        w.target_id[1].target_config = new WZTargetConfig[] {w.target_id[1].target_config[0]};
        w.port_type[0].port_option = new WZPortOption[6];
        java.util.Arrays.fill(w.port_type[0].port_option, w.port_type[1].port_option[3]);
        w.sync_control = new WZSyncControl[] {w.sync_control[0]};
        jni.KX_SetWizardParam("u", w, P, 0);  // the allocation seam catches any write past the record
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetWizardParam", 0, 1));
        Rec full = wizard();
        assertArrayEquals(full.slice(148, 8268 + 8 + 2065), sent.slice(148, 8268 + 8 + 2065));
        assertTrue(sent.zero(148 + 8268 + 8 + 2065, 3 * 2065));
        for (int i = 0; i < 4; i++)
            assertArrayEquals(full.slice(16788 + 68 + 20 + 36, 12), sent.slice(16788 + 20 + 12 * i, 12));
        assertTrue(sent.zero(17156, 8));
    }

    @Test
    public void readingStopsWhereANestedPartIsMissing() {
        WizardParam w = new WizardParam();
        w.fd_backup = 9;
        w.dual_conf = new WZDualConfig();  // serial null: this part ends there, the rest goes on
        w.dual_conf.startup_attr = 1;
        w.dual_conf.delay_time = 2;
        w.drive_capacity = new WZDriveCapacity();
        w.drive_capacity.row = new int[] {1, 2, 3, 4, 5, 6};
        w.drive_capacity.spare = 3;
        // option null: reading ends, nothing after it is sent
        w.mode_param = new WZModeParam();
        w.mode_param.striping = 4;
        jni.KX_SetWizardParam("u", w, P, 0);
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetWizardParam", 0, 1));
        assertEquals(9, sent.i32(0));
        assertEquals(1, sent.i32(4));
        assertTrue(sent.zero(8, 80 - 4));
        assertEquals(6, sent.i32(84 + 20));
        assertEquals(3, sent.i32(84 + 24));
        assertTrue(sent.zero(112, 17164 - 112));
    }

    @Test
    public void currentSettingsTravelBothWays() {
        Rec now = Rec.of(48).i32(0, 5);
        for (int i = 0; i < 6; i++) now.i32(4 + 4 * i, value(1, i));
        now.i32(28, -6).str(32, "CTL-FRONT").str(41, "RR").i32(44, 2);
        FakePernix.willWrite("KX_GetNowWZParam", 2, now.bytes());
        NowWZParameter p = jni.KX_GetNowWZParam("u", 3);
        assertEquals(5, p.fd_backup);
        assertArrayEquals(new int[][] {{value(1, 0), value(1, 1)}, {value(1, 2), value(1, 3)}, {value(1, 4), value(1, 5)}},
                          p.port_option.mode);
        assertEquals(-6, p.port_option.hp2_support);
        // A buffer the library filled to its last byte is cut at its end.
        assertArrayEquals(new Object[] {"CTL-FRONT", "RR", 2},
                          new Object[] {p.ctrl_id.id_front, p.ctrl_id.id_rear, p.ctrl_id.ctrl_name_mode});

        p.ctrl_id.id_front = "CTL-0001";
        jni.KX_SetNowWZParam("u", 4, p);
        assertEquals(4, FakePernix.intArg("KX_SetNowWZParam", 0, 1));
        assertArrayEquals(now.put(32, cstr("CTL-0001", 9)).bytes(), FakePernix.arg("KX_SetNowWZParam", 0, 2));
    }

    @Test
    public void luSetUpContentsAreCutAtTheirBuffer() {
        LuWZSetContents c = new LuWZSetContents();
        c.setcontens = repeat('x', 40000);
        jni.KX_LuWizardOutput("u", S, P, c);
        assertCString(c.setcontens, 32768, FakePernix.arg("KX_LuWizardOutput", 0, 3));
        c.setcontens = "LU0 RAID5 100GB\nLU1 RAID1 20GB\n";
        jni.KX_LuWizardOutput("u", S, P, c);
        assertCString(c.setcontens, 32768, FakePernix.arg("KX_LuWizardOutput", 1, 3));
        c.setcontens = null;  // the library gets an empty record all the same
        jni.KX_LuWizardOutput("u", S, P, c);
        assertArrayEquals(new byte[32768], FakePernix.arg("KX_LuWizardOutput", 2, 3));
    }
}
