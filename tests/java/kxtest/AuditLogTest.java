package kxtest;

import static org.junit.Assert.*;

import orvane.str.diskarray.*;
import org.junit.Test;

/** User LAN settings and the audit log. */
public class AuditLogTest extends BridgeTest {
    static final String UNIT = "array-09-" + repeat('u', 80); // cut to 64 bytes in its 65-byte buffer
    static final KXSessionInfo S = SessionTest.session(11);
    static final String FILE = "/tmp/" + repeat('f', 100);

    static Rec lanRecord() {
        Rec r = Rec.of(252).i32(240, 5).i32(244, 6).i32(248, 7);
        for (int c = 0; c < 2; c++) {
            int o = c * 120;
            r.i32(o, 1 + c).i32(o + 4, 2 + c).i32(o + 8, 3 + c).i32(o + 12, c).str(o + 16, "192.168.0." + c)
                    .str(o + 32, "255.255.255.0").str(o + 48, "192.168.0.1").i32(o + 64, 7 + c)
                    .str(o + 68, "10.0.0." + c).str(o + 84, "255.0.0.0").str(o + 100, "10.0.0.1").i32(o + 116, -1 - c);
        }
        return r;
    }

    /** The detail of controller c as lanRecord() lays it out. */
    static KXUserLANDetail detail(int c) {
        KXUserLANDetail d = new KXUserLANDetail();
        d.support_index = 1 + c; d.valid_index = 2 + c; d.setting_result = 3 + c; d.dhcp = c;
        d.current_ipaddress = "192.168.0." + c; d.current_subnet = "255.255.255.0"; d.current_gateway = "192.168.0.1";
        d.current_linkspeed_duplex = 7 + c;
        d.set_ipaddress = "10.0.0." + c; d.set_subnet = "255.0.0.0"; d.set_gateway = "10.0.0.1";
        d.set_linkspeed_duplex = -1 - c;
        return d;
    }

    static Object[] fields(KXUserLANDetail d) {
        return new Object[] {d.support_index, d.valid_index, d.setting_result, d.dhcp, d.current_ipaddress,
            d.current_subnet, d.current_gateway, d.current_linkspeed_duplex, d.set_ipaddress, d.set_subnet,
            d.set_gateway, d.set_linkspeed_duplex};
    }

    @Test
    public void lanSettingsBothWaysAndFromAFile() {
        FakePernix.willWrite("KX_GetKXUserLANInformation", 2, lanRecord().bytes());
        KXUserLANInformation got = jni.KX_GetKXUserLANInformation(UNIT, S);
        assertEquals(2, got.ctl.length);
        assertArrayEquals(fields(detail(0)), fields(got.ctl[0]));
        assertArrayEquals(fields(detail(1)), fields(got.ctl[1]));
        assertArrayEquals(new int[] {5, 6, 7}, new int[] {got.mainte_ip_change_mode, got.last_set_mode, got.logout_instruction});

        // a third detail has no place in the record and is not read
        got.ctl = new KXUserLANDetail[] {detail(0), detail(1), detail(2)};
        jni.KX_SetKXUserLANInformation(UNIT, S, got);
        assertArrayEquals(lanRecord().bytes(), FakePernix.arg("KX_SetKXUserLANInformation", 0, 2));

        FakePernix.willWrite("KX_LoadKXUserLANInformation", 3, lanRecord().bytes());
        assertEquals(2, jni.KX_LoadKXUserLANInformation(UNIT, S, FILE).ctl.length);
        assertCString(FILE, 1024, FakePernix.arg("KX_LoadKXUserLANInformation", 0, 2));
    }

    @Test
    public void auditLogSettingsBothWays() {
        byte[] rec = Rec.of(56).i32(0, 1).i32(4, 2).i32(8, 3).i32(12, 1).str(16, "172.16.0.5")
                .str(36, "172.16.0.6").i32(52, -4).bytes();
        FakePernix.willWrite("KX_GetKXAuditLogInformation", 2, rec);
        KXAuditLogInformation got = jni.KX_GetKXAuditLogInformation(UNIT, S);
        KXAuditLogSyslogServer[] servers = got.auditlog_server.server;
        assertEquals(2, servers.length);
        assertArrayEquals(new Object[] {1, 2, 3, 1, "172.16.0.5", 0, "172.16.0.6", -4}, new Object[] {got.option,
            got.set_valid, got.auditlog_server.serverall_used, servers[0].server_used, servers[0].ip_address,
            servers[1].server_used, servers[1].ip_address, got.auditlog_internallog.internallog_used});

        jni.KX_SetKXAuditLogInformation(UNIT, S, got);
        assertArrayEquals(rec, FakePernix.arg("KX_SetKXAuditLogInformation", 0, 2));
    }

    @Test
    public void auditLogExportAndInit() {
        jni.KX_KXAuditLogExport(UNIT, S, FILE);
        assertCString(FILE, 1024, FakePernix.arg("KX_KXAuditLogExport", 0, 2));

        KXAuditLogInit init = new KXAuditLogInit();
        init.set_valid = 0x55;
        jni.KX_InitKXAuditLog(UNIT, S, init);
        assertArrayEquals(Rec.of(4).i32(0, 0x55).bytes(), FakePernix.arg("KX_InitKXAuditLog", 0, 2));
    }
}
