package kxtest;

import static kxtest.RaidGroupTest.S;
import static kxtest.RaidGroupTest.assertFields;
import static kxtest.RaidGroupTest.fill;
import static kxtest.RaidGroupTest.put;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import orvane.str.diskarray.*;
import org.junit.Test;

/** Copy pairs, coupled LUs, command devices, DMLUs and the remote array. */
public class ReplicationTest extends BridgeTest {
    static final String[] MIRROR = {"mirror_no", "lun", "ctl_no", "pool_no", "pair_status", "usedcapa", "changed_rate"};
    static final String[] PAIR_LU = {"lun", "capacity", "pool_usedcapa_h", "pool_usedcapa_l", "pool_usedrate",
        "mirror_count"};
    static final String[] POOL = {"pool_no", "poolcapa_h", "poolcapa_l"};
    static final String[] TIME = {"year", "month", "day", "hour", "minute", "second"};
    static final String[] MIRREX = {"lun", "pair_status", "pair_attr", "changed_rate"};
    static final String[] FARSYNC = {"support_index", "valid_index", "lun", "pair_status", "pair_attr", "changed_rate"};
    static final String[] ASYNC_HEAD = {"lun", "pair_status", "pair_attr", "ctg_num", "lu_capacity", "remote_lu"};
    static final String[] ASYNC_TAIL = {"member_valid", "synchronized_rate", "difference_capacity", "difference_rate"};
    static final String[] API_TIME = {"hour", "minute", "second"};
    static final String[] CTG_MID = {"remains_difference", "rate_status", "transfer_rate", "prediction_status"};
    static final String[] COUPLING = {"primary_stat", "second_stat", "primary_lu", "second_lu", "primary_switch_stat",
        "second_switch_stat", "mirror_no"};
    static final String[] ASYNC_OPTION = {"option", "support_index", "valid_index", "ctrl_flag", "set_index",
        "cycle_time"};
    static final String[] CMD_DEV = {"cmd_valid", "set_valid", "cmd_lu", "rm_security"};
    static final String[] DMLU = {"dmlu_valid", "set_valid", "dmlu_lu"};

    @Test
    public void pairInformationAlwaysHasEveryLuAndEveryMirror() {
        Rec r = Rec.of(1645024).i32(0, 7).i32(36, 1);  // one pair reported
        for (int c = 0; c < 2; c++) put(r.i32(4 + 16 * c, c + 1), 8 + 16 * c, 50 + c, POOL);
        for (int lu : new int[] {0, 2045}) {
            int o = 40 + 804 * lu;
            put(r, o, lu, PAIR_LU).i32(o + 20, lu == 0 ? 1 : 0);
            for (int m : new int[] {0, 14}) {
                put(r, o + 24 + 52 * m, lu + m, MIRROR);
                put(r, o + 24 + 52 * m + 28, lu + m + 1, TIME);
            }
        }
        FakePernix.willWrite("KX_GetPairInformation", 2, r.bytes());
        PairInfo p = jni.KX_GetPairInformation("u", S);
        assertArrayEquals(new int[] {7, 1, 2, 2046}, new int[] {p.option, p.pair_count, p.ctl.length, p.lu.length});
        for (int c = 0; c < 2; c++) {
            assertEquals(c + 1, p.ctl[c].pool_enable_count);
            assertEquals(1, p.ctl[c].pool.length);
            assertFields(p.ctl[c].pool[0], 50 + c, POOL);
        }
        for (int lu : new int[] {0, 2045}) {
            assertEquals(15, p.lu[lu].m_info.length);
            for (int m : new int[] {0, 14}) {
                assertFields(p.lu[lu].m_info[m], lu + m, MIRROR);
                assertFields(p.lu[lu].m_info[m].time, lu + m + 1, TIME);
            }
        }
        assertEquals(1, p.lu[0].mirror_count);
        assertEquals(0, p.lu[2045].mirror_count);
        assertEquals(0, p.lu[1000].m_info[7].time.second);
    }

    @Test
    public void pairTablesOfEveryKindAreBuiltAtFullCapacity() {
        Rec m = Rec.of(229384).i32(0, 2).i32(4, 4096);
        int o = 8 + 56 * 4095;
        put(m, o, 9, MIRREX).str(o + 16, "TYPE-0123456789AB").str(o + 33, "12345678").str(o + 50, "LDEV01");
        FakePernix.willWrite("KX_GetMirrexInformation", 1, m.bytes());
        MirrexInformation mi = jni.KX_GetMirrexInformation("u");
        assertEquals(4096, mi.lu.length);
        MirrexLuInfo last = mi.lu[4095];
        assertFields(last, 9, MIRREX);
        // Texts that fill their fields are read to the fields' ends and no further.
        assertArrayEquals(new String[] {"TYPE-0123456789AB", "12345678", "LDEV01"},
                          new String[] {last.remote_type, last.remote_serial, last.remote_ldev});
        assertEquals("", mi.lu[0].remote_type);

        Rec f = Rec.of(196616).i32(4, 1);
        put(f, 8 + 48 * 4095, 4, FARSYNC).str(8 + 48 * 4095 + 24, "SERIAL-0123456789ABC").i32(8 + 48 * 4095 + 44, -1);
        FakePernix.willWrite("KX_GetFarsyncPairInformation", 2, f.bytes());
        FarsyncPairInformation fi = jni.KX_GetFarsyncPairInformation("u", S);
        assertEquals(4096, fi.lu.length);
        assertFields(fi.lu[4095], 4, FARSYNC);
        assertEquals("SERIAL-0123456789ABC", fi.lu[4095].remote_serial);
        assertEquals(-1, fi.lu[4095].remote_lu);

        Rec a = Rec.of(345480).i32(0, 3).i32(4, 2);
        int lo = 8 + 84 * 4095;
        put(put(put(a, lo, 5, ASYNC_HEAD).str(lo + 24, "S-1"), lo + 44, 6, ASYNC_TAIL), lo + 60, 7, TIME);
        for (int c = 0; c < 2; c++) {
            int co = 344072 + 88 * 15 + 44 * c;
            put(put(put(a.i32(co, c + 10), co + 4, c, API_TIME), co + 16, c + 1, CTG_MID), co + 32, c + 2, API_TIME);
        }
        FakePernix.willWrite("KX_GetFarsyncAsyncPairInformation", 2, a.bytes());
        FarsyncAsyncPairInformation ai = jni.KX_GetFarsyncAsyncPairInformation("u", S);
        assertArrayEquals(new int[] {3, 2, 4096, 16}, new int[] {ai.option, ai.pair_count, ai.lu.length, ai.ctg.length});
        assertFields(ai.lu[4095], 5, ASYNC_HEAD);
        assertFields(ai.lu[4095], 6, ASYNC_TAIL);
        assertFields(ai.lu[4095].synchronized_time, 7, TIME);
        assertEquals("S-1", ai.lu[4095].remote_serial);
        for (int c = 0; c < 2; c++) {
            FarsyncAsyncCTGCTLInfo ctl = ai.ctg[15].ctl[c];
            assertEquals(c + 10, ctl.ctg_valid);
            assertFields(ctl.lapsed_time, c, API_TIME);
            assertFields(ctl, c + 1, CTG_MID);
            assertFields(ctl.prediction_time, c + 2, API_TIME);
        }
        assertEquals(2, ai.ctg[0].ctl.length);

        Rec c = put(put(Rec.of(114696).i32(0, 1).i32(4, 4096), 8, 0, COUPLING), 8 + 28 * 4095, 4095, COUPLING);
        FakePernix.willWrite("KX_GetCouplingInfo", 2, c.bytes());
        CouplingInfo ci = jni.KX_GetCouplingInfo("u", S);
        assertArrayEquals(new int[] {1, 4096, 4096}, new int[] {ci.volk_lite, ci.coupling_num, ci.coupling.length});
        assertFields(ci.coupling[0], 0, COUPLING);
        assertFields(ci.coupling[4095], 4095, COUPLING);
    }

    static CommandDevice commandDevice(int devices, String sequence) {
        CommandDevice d = new CommandDevice();
        d.volk_lite = 1;
        d.mode = -2;
        d.valid = new int[] {3, 4};
        d.lu = new int[] {4095, 0x7FFFFFFF};
        d.security = new int[] {-5, 6};
        d.sequence_no = sequence;
        d.cmd_count = devices;
        d.cmddev = new CmdDevInfo[devices];
        for (int i = 0; i < devices; i++) d.cmddev[i] = fill(new CmdDevInfo(), 20 + i, CMD_DEV);
        return d;
    }

    static Rec commandDeviceBytes(String sequence, int devices) {
        Rec r = Rec.of(76).i32(0, 1).i32(4, -2).i32(8, 3).i32(12, 4).i32(16, 4095).i32(20, 0x7FFFFFFF)
            .i32(24, -5).i32(28, 6).str(32, sequence).i32(40, devices);
        for (int i = 0; i < Math.min(devices, 2); i++) put(r, 44 + 16 * i, 20 + i, CMD_DEV);
        return r;
    }

    @Test
    public void commandDeviceSendsFourSequenceCharactersAndAtMostTwoDevices() {
        jni.KX_SetCommandDevice("u", S, commandDevice(2, "1234"));
        assertArrayEquals(commandDeviceBytes("1234", 2).bytes(), FakePernix.arg("KX_SetCommandDevice", 0, 2));
        // A longer sequence number is cut to four characters and a NUL; the
        // reserved bytes behind it stay zero.  A third device is not sent.
        jni.KX_SetCommandDevice("u", S, commandDevice(3, "ABCDEFGHIJ"));
        assertArrayEquals(commandDeviceBytes("ABCD", 3).bytes(), FakePernix.arg("KX_SetCommandDevice", 1, 2));

        // The library fills the whole eight-byte field: all of it reaches Java.
        FakePernix.willWrite("KX_GetCommandDevice", 2, commandDeviceBytes("SEQ45678", 2).bytes());
        CommandDevice d = jni.KX_GetCommandDevice("u", S);
        assertArrayEquals(new int[] {1, -2, 2}, new int[] {d.volk_lite, d.mode, d.cmd_count});
        assertArrayEquals(new int[] {3, 4}, d.valid);
        assertArrayEquals(new int[] {4095, 0x7FFFFFFF}, d.lu);
        assertArrayEquals(new int[] {-5, 6}, d.security);
        assertEquals("SEQ45678", d.sequence_no);
        assertEquals(2, d.cmddev.length);
        assertFields(d.cmddev[0], 20, CMD_DEV);
        assertFields(d.cmddev[1], 21, CMD_DEV);
    }

    @Test
    public void shortIntArrayStopsTheReadingAndReachesJavaUnlessTheLibraryFails() {
        CommandDevice d = commandDevice(2, "1234");
        d.lu = new int[] {1};
        Throwable t = thrown(() -> jni.KX_SetCommandDevice("u", S, d));
        assertEquals(ArrayIndexOutOfBoundsException.class, t.getClass());
        // Read up to the short array, nothing after it.
        assertArrayEquals(Rec.of(76).i32(0, 1).i32(4, -2).i32(8, 3).i32(12, 4).bytes(),
                          FakePernix.arg("KX_SetCommandDevice", 0, 2));
        FakePernix.willReturn("KX_SetCommandDevice", 99);
        assertEquals(99, code(() -> jni.KX_SetCommandDevice("u", S, d)));
    }

    @Test
    public void dmluRemoteDeviceAndAsyncOptionTravelBothWays() {
        DMLUInformation in = new DMLUInformation();
        in.mode = 1;
        in.dmlu_count = 3;
        in.dmlu = new DMLUDetail[] {fill(new DMLUDetail(), 1, DMLU), fill(new DMLUDetail(), 2, DMLU),
            fill(new DMLUDetail(), 3, DMLU)};
        jni.KX_SetDMLU("u", S, in);
        Rec dm = put(put(Rec.of(32).i32(0, 1).i32(4, 3), 8, 1, DMLU), 20, 2, DMLU);
        assertArrayEquals(dm.bytes(), FakePernix.arg("KX_SetDMLU", 0, 2));
        in.dmlu = new DMLUDetail[] {null, fill(new DMLUDetail(), 2, DMLU)};  // a null element is skipped
        jni.KX_SetDMLU("u", S, in);
        assertArrayEquals(put(Rec.of(32).i32(0, 1).i32(4, 3), 20, 2, DMLU).bytes(), FakePernix.arg("KX_SetDMLU", 1, 2));
        FakePernix.willWrite("KX_GetDMLU", 2, dm.bytes());
        DMLUInformation out = jni.KX_GetDMLU("u", S);
        assertArrayEquals(new int[] {1, 3, 2}, new int[] {out.mode, out.dmlu_count, out.dmlu.length});
        assertFields(out.dmlu[0], 1, DMLU);
        assertFields(out.dmlu[1], 2, DMLU);

        RemoteDeviceInformation rd = new RemoteDeviceInformation();
        rd.valid = 1;
        rd.equipment_id = "EQ12345";
        rd.serial = "SERIAL-ABCDEF";
        jni.KX_SetRemoteDeviceInformation("u", S, rd);
        assertArrayEquals(Rec.of(20).i32(0, 1).str(4, "EQ12").str(9, "SERIAL-A").bytes(),
                          FakePernix.arg("KX_SetRemoteDeviceInformation", 0, 2));
        FakePernix.willWrite("KX_GetRemoteDeviceInformation", 2,
                             Rec.of(20).i32(0, -1).str(4, "EQ123").str(9, "987654321").str(18, "ZZ").bytes());
        RemoteDeviceInformation got = jni.KX_GetRemoteDeviceInformation("u", S);
        assertArrayEquals(new Object[] {-1, "EQ123", "987654321"}, new Object[] {got.valid, got.equipment_id, got.serial});

        jni.KX_SetFarsyncAsyncOption("u", S, fill(new FarsyncAsyncOption(), 8, ASYNC_OPTION));
        assertArrayEquals(put(Rec.of(24), 0, 8, ASYNC_OPTION).bytes(), FakePernix.arg("KX_SetFarsyncAsyncOption", 0, 2));
        FakePernix.willWrite("KX_GetFarsyncAsyncOption", 2, put(Rec.of(24), 0, 9, ASYNC_OPTION).bytes());
        assertFields(jni.KX_GetFarsyncAsyncOption("u", S), 9, ASYNC_OPTION);
    }
}
