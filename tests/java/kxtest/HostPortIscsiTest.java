package kxtest;

import static kxtest.RaidGroupTest.S;
import static org.junit.Assert.*;

import orvane.str.diskarray.*;
import org.junit.Test;

/** iSCSI ports, targets, initiators, CHAP users, iSNS and ping. */
public class HostPortIscsiTest extends BridgeTest {
    static final int TARGETS_ALL = 1158852;
    static final int TARGET = 568;
    static final int INITIATORS_ALL = 614532;
    static final int INITIATOR_PORT = 76816;
    static final int LOGIN_ALL = 467040;
    static final int CHAP_ALL = 1360004;
    static final int CHAP_PORT = 170000;

    static String iqn(int c, int p, int i) {
        return "iqn.2026-11.com.example:host-" + c + "-" + p + "-" + i;
    }

    @Test
    public void portSettingsAndIsnsAndPingTravelBothWays() {
        Rec r = Rec.of(736);
        for (int c = 0; c < 2; c++) {
            for (int p = 0; p < 4; p++) {
                int o = 368 * c + 92 * p;
                r.i32(o, 1).i32(o + 4, c - p).str(o + 8, "192.168.1" + c + "." + (100 + p)).str(o + 24, "255.255.255.0")
                    .str(o + 40, "192.168.10.1").i32(o + 56, 3260 + p).str(o + 60, "00:11:22:33:44:5" + p)
                    .i32(o + 80, 60).i32(o + 84, 9000).i32(o + 88, -p);
            }
        }
        FakePernix.willWrite("KX_GetiSCSIPortInformation", 2, r.bytes());
        KXiSCSIPortInformation info = jni.KX_GetiSCSIPortInformation("u", S);
        KXiSCSIPortPortInfo last = info.ctl[1].port[3];
        assertArrayEquals(new Object[] {1, -2, "192.168.11.103", "255.255.255.0", "192.168.10.1", 3263,
            "00:11:22:33:44:53", 60, 9000, -3}, new Object[] {last.port_valid, last.set_valid, last.ip_address,
                last.subnet, last.gateway, last.port_num, last.ether, last.keep_alive_timer, last.mtu, last.set_status});
        jni.KX_SetiSCSIPortInformation("u", S, info);
        assertArrayEquals(r.bytes(), FakePernix.arg("KX_SetiSCSIPortInformation", 0, 2));
        // An address longer than its 16 bytes is cut to 15 and its NUL.
        last.ip_address = "1234.5678.9012.3456";
        jni.KX_SetiSCSIPortInformation("u", S, info);
        assertArrayEquals(cstr("1234.5678.9012.", 16),
                Rec.wrap(FakePernix.arg("KX_SetiSCSIPortInformation", 1, 2)).slice(368 + 92 * 3 + 8, 16));

        Rec isns = Rec.of(256);
        for (int k = 0; k < 8; k++) isns.i32(32 * k, k).i32(32 * k + 4, -k).i32(32 * k + 8, k & 1)
            .str(32 * k + 12, "10.0.0." + k).i32(32 * k + 28, 3205);
        FakePernix.willWrite("KX_GetiSNSInformation", 2, isns.bytes());
        KXiSNSInformation n = jni.KX_GetiSNSInformation("u", S);
        assertEquals("10.0.0.7", n.ctl[1].port[3].ip_address);
        assertEquals(-5, n.ctl[1].port[1].set_valid);
        jni.KX_SetiSNSInformation("u", S, n);
        assertArrayEquals(isns.bytes(), FakePernix.arg("KX_SetiSNSInformation", 0, 2));

        Rec ping = Rec.of(320);
        for (int k = 0; k < 8; k++) ping.i32(40 * k, 1).i32(40 * k + 4, k).str(40 * k + 8, "172.16.0." + k)
            .i32(40 * k + 24, -k).i32(40 * k + 28, 10 * k).i32(40 * k + 32, 9 * k).i32(40 * k + 36, 0x7FFFFFFF - k);
        FakePernix.willWrite("KX_GetiSCSIPingStatus", 2, ping.bytes());
        KXiSCSIPing got = jni.KX_GetiSCSIPingStatus("u", S);
        KXiSCSIPingPort pp = got.ctl[1].port[2];
        assertArrayEquals(new Object[] {1, 6, "172.16.0.6", -6, 60, 54, 0x7FFFFFFF - 6}, new Object[] {pp.port_valid,
            pp.request_valid, pp.ip_address, pp.status, pp.execute_count, pp.success_count, pp.schedule_count});
        jni.KX_RequestiSCSIPing("u", S, got);
        assertArrayEquals(ping.bytes(), FakePernix.arg("KX_RequestiSCSIPing", 0, 2));
    }

    static void target(Rec r, int o, int seed) {
        r.i32(o, 1).str(o + 4, "target-" + seed).str(o + 37, iqn(seed, 0, 0)).i32(o + 264, seed & 3)
            .i32(o + 268, -seed).i32(o + 272, 1).str(o + 276, "chap-" + seed).str(o + 533, "s3cr3t-" + seed);
    }

    @Test
    public void targetTableIsBuiltWholeAndClearedBeforeRelease() {
        Rec r = Rec.of(TARGETS_ALL).i32(0, 5);
        int port = 4 + 579424 + 144856 * 3;  // controller 1, port 3
        r.i32(port, 1).i32(port + 4, 2).i32(port + 8, 255).i32(port + 12, 0);
        target(r, 4 + 16, 1);
        target(r, port + 16 + 568 * 254, 2);
        FakePernix.willWrite("KX_GetiSCSITargetInformationAll", 2, r.bytes());
        KXiSCSITargetInformationAll all = jni.KX_GetiSCSITargetInformationAll("u", S);
        assertEquals(5, all.option);
        assertEquals(2, all.ctl.length);
        for (KXiSCSITargetCTLInfo c : all.ctl) {
            assertEquals(4, c.port.length);
            for (KXiSCSITargetPortInfo p : c.port) assertEquals(255, p.target.length);
        }
        KXiSCSITargetPortInfo p = all.ctl[1].port[3];
        assertArrayEquals(new int[] {1, 2, 255, 0}, new int[] {p.port_valid, p.security, p.target_max_count, p.target_count});
        KXiSCSITargetInfo t = p.target[254];
        assertArrayEquals(new Object[] {1, "target-2", iqn(2, 0, 0), 2, -2, 1, "chap-2", "s3cr3t-2"},
                new Object[] {t.target_valid, t.target_name, t.iscsi_name, t.authmethod, t.algorithm, t.auth,
                    t.user_name, t.secret});
        assertEquals("s3cr3t-1", all.ctl[0].port[0].target[0].secret);
        assertEquals("", all.ctl[0].port[2].target[100].secret);
        assertEquals("the record with the secrets is cleared", 0, FakePernix.unwipedReleases(TARGETS_ALL));
    }

    @Test
    public void targetCallsPassTheirAddressAndTheRecordWithItsSecret() throws Throwable {
        KXiSCSITargetInfo t = new KXiSCSITargetInfo();
        t.target_valid = 1;
        t.target_name = repeat('n', 40);
        t.iscsi_name = iqn(0, 1, 2);
        t.authmethod = 2;
        t.algorithm = -1;
        t.auth = 3;
        t.user_name = repeat('u', 300);
        t.secret = repeat('s', 40);
        Rec expected = Rec.of(TARGET).i32(0, 1).str(4, repeat('n', 32)).str(37, iqn(0, 1, 2)).i32(264, 2)
            .i32(268, -1).i32(272, 3).str(276, repeat('u', 256)).str(533, repeat('s', 32));
        jni.KX_CreateiSCSITarget("u", S, 1, 3, 254, t);
        jni.KX_ChangeiSCSITarget("u", S, 0, 2, 7, t);
        for (String fn : new String[] {"KX_CreateiSCSITarget", "KX_ChangeiSCSITarget"})
            assertArrayEquals(fn, expected.bytes(), FakePernix.arg(fn, 0, 5));
        assertEquals("target records are cleared", 0, FakePernix.unwipedReleases(TARGET));

        DeleteiSCSITarget d = new DeleteiSCSITarget();
        d.delete_target = new int[300];  // only the 255 slots count
        for (int i = 0; i < 300; i++) d.delete_target[i] = i * 3 - 1;
        jni.KX_DeleteiSCSITarget("u", S, 1, 2, d);
        Rec sent = Rec.wrap(FakePernix.arg("KX_DeleteiSCSITarget", 0, 4));
        assertArrayEquals(new int[] {-1, 254 * 3 - 1}, new int[] {sent.i32(0), sent.i32(1016)});
    }

    @Test
    public void initiatorTablesAreBuiltWholeAndOnePortGoesBack() {
        Rec r = Rec.of(INITIATORS_ALL).i32(0, -1);
        int port = 4 + 307264 + 76816 * 2;  // controller 1, port 2
        r.i32(port, 1).i32(port + 4, 1).i32(port + 8, 256).i32(port + 12, 1);
        int last = port + 16 + 300 * 255;
        r.i32(last, 1).i32(last + 4, 3).str(last + 8, repeat('i', 32)).str(last + 41, iqn(1, 2, 255))
            .u8(last + 265, 0x81).u8(last + 296, 0xFF);
        FakePernix.willWrite("KX_GetiSCSIInitiatorInformationAll", 2, r.bytes());
        KXiSCSIInitiatorInformationAll all = jni.KX_GetiSCSIInitiatorInformationAll("u", S);
        KXiSCSIInitiatorPortInfo p = all.ctl[1].port[2];
        assertEquals(256, p.initiator.length);
        KXiSCSIInitiatorInfo i = p.initiator[255];
        assertArrayEquals(new Object[] {1, 3, repeat('i', 32), iqn(1, 2, 255), (byte) 0x81, (byte) -1},
                new Object[] {i.initiator_valid, i.ctrl_flag, i.initiator_name, i.iscsi_name, i.target_bitmap[0],
                    i.target_bitmap[31]});

        jni.KX_SetiSCSIInitiatortInformation("u", S, 1, 2, p);
        assertArrayEquals(r.slice(port, INITIATOR_PORT), FakePernix.arg("KX_SetiSCSIInitiatortInformation", 0, 4));
        // More initiators than a port holds: the first 256, and no write past the record.
        KXiSCSIInitiatorInfo[] more = new KXiSCSIInitiatorInfo[400];
        for (int k = 0; k < 400; k++) {
            more[k] = new KXiSCSIInitiatorInfo();
            more[k].initiator_name = "init" + k;
            more[k].iscsi_name = iqn(0, 0, k);
        }
        p.initiator = more;
        jni.KX_SetiSCSIInitiatortInformation("u", S, 0, 0, p);
        assertEquals("init255", Rec.wrap(FakePernix.arg("KX_SetiSCSIInitiatortInformation", 1, 4)).str(last - port + 8, 33));

        Rec login = Rec.of(LOGIN_ALL);
        int lp = 233520 + 58380 * 3;
        login.i32(lp, 1).i32(lp + 4, 256).i32(lp + 8, 0).i32(lp + 12 + 228 * 255, 1).str(lp + 16 + 228 * 255, iqn(1, 3, 255));
        FakePernix.willWrite("KX_GetiSCSILoginInitiatorInformationAll", 2, login.bytes());
        KXiSCSILoginInitiatorInformationAll in = jni.KX_GetiSCSILoginInitiatorInformationAll("u", S);
        int objects = 0;
        for (KXiSCSILoginInitiatorCTLInfo c : in.ctl)
            for (KXiSCSILoginInitiatorPortInfo q : c.port) objects += q.initiator.length;
        assertEquals("every slot though the count is 0", 2 * 4 * 256, objects);
        assertEquals(iqn(1, 3, 255), in.ctl[1].port[3].initiator[255].iscsi_name);
        assertEquals(0, in.ctl[1].port[3].initiator_count);
    }

    static Rec chapUser(Rec r, int o, int seed) {
        return r.i32(o, 1).i32(o + 4, seed).str(o + 8, "user-" + seed).str(o + 265, "chap-secret-" + seed)
            .u8(o + 298, seed).u8(o + 329, 0x80);
    }

    @Test
    public void chapUsersAreBuiltWholeAndEveryRecordHoldingASecretIsCleared() throws Throwable {
        Rec r = Rec.of(CHAP_ALL).i32(0, 3);
        int port = 4 + 680000 + 170000 * 3;
        r.i32(port, 1).i32(port + 4, 1).i32(port + 8, 512).i32(port + 12, 2);
        chapUser(r, port + 16, 1);
        chapUser(r, port + 16 + 332 * 511, 2);
        FakePernix.willWrite("KX_GetiSCSICHAPUserInformationAll", 2, r.bytes());
        KXiSCSICHAPUserInformationAll all = jni.KX_GetiSCSICHAPUserInformationAll("u", S);
        KXiSCSICHAPUserPortInfo p = all.ctl[1].port[3];
        assertEquals(512, p.user.length);
        KXiSCSICHAPUserInfo u = p.user[511];
        assertArrayEquals(new Object[] {1, 2, "user-2", "chap-secret-2", (byte) 2, (byte) 0x80},
                new Object[] {u.user_valid, u.ctrl_flag, u.user_name, u.secret, u.target_bitmap[0], u.target_bitmap[31]});
        assertEquals(0, FakePernix.unwipedReleases(CHAP_ALL));

        jni.KX_SetiSCSICHAPUserInformation("u", S, 1, 3, p);
        assertArrayEquals(r.slice(port, CHAP_PORT), FakePernix.arg("KX_SetiSCSICHAPUserInformation", 0, 4));
        assertEquals(0, FakePernix.unwipedReleases(CHAP_PORT));
        // 600 users: 512 are read; the guards after the record stay intact.
        KXiSCSICHAPUserInfo[] more = new KXiSCSICHAPUserInfo[600];
        for (int k = 0; k < 600; k++) {
            more[k] = new KXiSCSICHAPUserInfo();
            more[k].user_name = "user" + k;
            more[k].secret = "pw" + k;
        }
        p.user = more;
        jni.KX_SetiSCSICHAPUserInformation("u", S, 0, 0, p);
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetiSCSICHAPUserInformation", 1, 4));
        assertArrayEquals(new String[] {"user511", "pw511"},
                new String[] {sent.str(16 + 332 * 511 + 8, 257), sent.str(16 + 332 * 511 + 265, 33)});
        // Cleared on the library's failure too.
        FakePernix.willReturn("KX_GetiSCSICHAPUserInformationAll", 9);
        FakePernix.willWrite("KX_GetiSCSICHAPUserInformationAll", 2, r.bytes());
        assertEquals(9, code(() -> jni.KX_GetiSCSICHAPUserInformationAll("u", S)));
        assertEquals(0, FakePernix.unwipedReleases(CHAP_ALL));
    }
}
