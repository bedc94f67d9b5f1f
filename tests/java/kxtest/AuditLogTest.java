package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.KXAuditLogInformation;
import orvane.str.diskarray.KXAuditLogInit;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUserLANDetail;
import orvane.str.diskarray.KXUserLANInformation;
import org.junit.Test;

/** User LAN settings and the audit log. */
public class AuditLogTest extends BridgeTest {
    static final String UNIT = "array-09";
    static final KXSessionInfo S = SessionTest.session(11);

    static Rec lanRecord() {
        Rec r = Rec.of(252);
        for (int c = 0; c < 2; c++) {
            int o = c * 120;
            r.i32(o, 1 + c).i32(o + 4, 2 + c).i32(o + 8, 3 + c).i32(o + 12, c)
                    .str(o + 16, "192.168.0." + (10 + c)).str(o + 32, "255.255.255.0").str(o + 48, "192.168.0.1")
                    .i32(o + 64, 7 + c).str(o + 68, "10.0.0." + (10 + c)).str(o + 84, "255.0.0.0")
                    .str(o + 100, "10.0.0.1").i32(o + 116, -1 - c);
        }
        return r.i32(240, 5).i32(244, 6).i32(248, 7);
    }

    static KXUserLANDetail detail(int c) {
        KXUserLANDetail d = new KXUserLANDetail();
        d.support_index = 1 + c;
        d.valid_index = 2 + c;
        d.setting_result = 3 + c;
        d.dhcp = c;
        d.current_ipaddress = "192.168.0." + (10 + c);
        d.current_subnet = "255.255.255.0";
        d.current_gateway = "192.168.0.1";
        d.current_linkspeed_duplex = 7 + c;
        d.set_ipaddress = "10.0.0." + (10 + c);
        d.set_subnet = "255.0.0.0";
        d.set_gateway = "10.0.0.1";
        d.set_linkspeed_duplex = -1 - c;
        return d;
    }

    static void assertDetail(int c, KXUserLANDetail d) {
        assertEquals(1 + c, d.support_index);
        assertEquals(2 + c, d.valid_index);
        assertEquals(3 + c, d.setting_result);
        assertEquals(c, d.dhcp);
        assertEquals("192.168.0." + (10 + c), d.current_ipaddress);
        assertEquals("255.255.255.0", d.current_subnet);
        assertEquals("192.168.0.1", d.current_gateway);
        assertEquals(7 + c, d.current_linkspeed_duplex);
        assertEquals("10.0.0." + (10 + c), d.set_ipaddress);
        assertEquals("255.0.0.0", d.set_subnet);
        assertEquals("10.0.0.1", d.set_gateway);
        assertEquals(-1 - c, d.set_linkspeed_duplex);
    }

    @Test
    public void lanSettingsBothWays() throws Throwable {
        FakePernix.willWrite("KX_GetKXUserLANInformation", 2, lanRecord().bytes());
        KXUserLANInformation got = jni.KX_GetKXUserLANInformation(UNIT, S);
        assertEquals(2, got.ctl.length);
        assertDetail(0, got.ctl[0]);
        assertDetail(1, got.ctl[1]);
        assertEquals(5, got.mainte_ip_change_mode);
        assertEquals(6, got.last_set_mode);
        assertEquals(7, got.logout_instruction);

        // a third detail has no place in the record and is not read
        KXUserLANInformation in = new KXUserLANInformation();
        in.ctl = new KXUserLANDetail[] {detail(0), detail(1), detail(2)};
        in.mainte_ip_change_mode = 5;
        in.last_set_mode = 6;
        in.logout_instruction = 7;
        jni.KX_SetKXUserLANInformation(UNIT, S, in);
        assertArrayEquals(lanRecord().bytes(), FakePernix.arg("KX_SetKXUserLANInformation", 0, 2));
        assertArrayEquals(S.session_id, FakePernix.arg("KX_SetKXUserLANInformation", 0, 1));
        assertEachAllocationFailureReported(() -> jni.KX_SetKXUserLANInformation(UNIT, S, in));
    }

    @Test
    public void lanSettingsLoadedFromAFile() throws Throwable {
        FakePernix.willWrite("KX_LoadKXUserLANInformation", 3, lanRecord().bytes());
        KXUserLANInformation got = jni.KX_LoadKXUserLANInformation(UNIT, S, "/tmp/lan.cfg");
        assertDetail(1, got.ctl[1]);
        assertCString("/tmp/lan.cfg", 1024, FakePernix.arg("KX_LoadKXUserLANInformation", 0, 2));

        assertEquals(258, code(() -> jni.KX_LoadKXUserLANInformation(UNIT, S, null)));
        assertEquals(258, code(() -> jni.KX_LoadKXUserLANInformation(null, S, "/tmp/lan.cfg")));
        assertEquals(1, FakePernix.calls("KX_LoadKXUserLANInformation"));
        FakePernix.willReturn("KX_LoadKXUserLANInformation", 256);
        assertNull(jni.KX_LoadKXUserLANInformation(UNIT, S, "/tmp/lan.cfg"));
        assertEachAllocationFailureReported(() -> jni.KX_LoadKXUserLANInformation(UNIT, S, "/x"));
    }

    static Rec auditRecord() {
        return Rec.of(56).i32(0, 1).i32(4, 2).i32(8, 3).i32(12, 1).str(16, "172.16.0.5")
                .i32(32, 0).str(36, "172.16.0.6").i32(52, -4);
    }

    @Test
    public void auditLogSettingsBothWays() throws Throwable {
        FakePernix.willWrite("KX_GetKXAuditLogInformation", 2, auditRecord().bytes());
        KXAuditLogInformation got = jni.KX_GetKXAuditLogInformation(UNIT, S);
        assertEquals(1, got.option);
        assertEquals(2, got.set_valid);
        assertEquals(3, got.auditlog_server.serverall_used);
        assertEquals(2, got.auditlog_server.server.length);
        assertEquals(1, got.auditlog_server.server[0].server_used);
        assertEquals("172.16.0.5", got.auditlog_server.server[0].ip_address);
        assertEquals("172.16.0.6", got.auditlog_server.server[1].ip_address);
        assertEquals(-4, got.auditlog_internallog.internallog_used);

        jni.KX_SetKXAuditLogInformation(UNIT, S, got);
        assertArrayEquals(auditRecord().bytes(), FakePernix.arg("KX_SetKXAuditLogInformation", 0, 2));

        // without its server object the record stops there: the internal log is not read
        got.auditlog_server = null;
        jni.KX_SetKXAuditLogInformation(UNIT, S, got);
        Rec r = Rec.wrap(FakePernix.arg("KX_SetKXAuditLogInformation", 1, 2));
        assertEquals(1, r.i32(0));
        assertEquals(2, r.i32(4));
        assertTrue(r.zero(8, 48));
        assertEachAllocationFailureReported(() -> jni.KX_GetKXAuditLogInformation(UNIT, S));
    }

    @Test
    public void auditLogExportAndInit() throws Throwable {
        jni.KX_KXAuditLogExport(UNIT, S, "/var/log/audit.out");
        assertArrayEquals(S.session_id, FakePernix.arg("KX_KXAuditLogExport", 0, 1));
        assertCString("/var/log/audit.out", 1024, FakePernix.arg("KX_KXAuditLogExport", 0, 2));
        assertEquals(258, code(() -> jni.KX_KXAuditLogExport(UNIT, S, null)));
        FakePernix.willReturn("KX_KXAuditLogExport", 0x3003);
        assertEquals(0x3003, code(() -> jni.KX_KXAuditLogExport(UNIT, S, "/x")));

        KXAuditLogInit init = new KXAuditLogInit();
        init.set_valid = 0x55;
        jni.KX_InitKXAuditLog(UNIT, S, init);
        assertArrayEquals(Rec.of(4).i32(0, 0x55).bytes(), FakePernix.arg("KX_InitKXAuditLog", 0, 2));
        assertEachAllocationFailureReported(() -> jni.KX_InitKXAuditLog(UNIT, S, init));
    }
}
