package simtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotEquals;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;
import static simtest.Sim.assertSameFields;
import static simtest.Sim.expect;

import org.junit.AfterClass;
import org.junit.BeforeClass;
import org.junit.Test;
import org.junit.experimental.categories.Category;
import orvane.str.diskarray.AlertCheckUser;
import orvane.str.diskarray.ChgPoolInfo;
import orvane.str.diskarray.DiskDriveRestoration;
import orvane.str.diskarray.DriveResponseDiag;
import orvane.str.diskarray.KXAccountBaseInfo;
import orvane.str.diskarray.KXAccountInfo;
import orvane.str.diskarray.KXAccountInfoList;
import orvane.str.diskarray.KXAccountLogout;
import orvane.str.diskarray.KXAuditLogInformation;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUserInfo;
import orvane.str.diskarray.KXUserLANInformation;
import orvane.str.diskarray.LuCachePartition;
import orvane.str.diskarray.NowWZParameter;
import orvane.str.diskarray.PoolInfo;
import orvane.str.diskarray.PrefetchInformation;
import orvane.str.diskarray.PrefetchTuning;
import orvane.str.diskarray.QuickFormatOption;
import orvane.str.diskarray.SATADriveInformation;
import orvane.str.diskarray.SATADriveRestoration;
import orvane.str.diskarray.TurboLu;
import orvane.str.diskarray.UnitIdentifier;
import orvane.str.diskarray.WizardParam;

/**
 * Every setter of these families reads back, through its getter, exactly what
 * was set: each test reads the record, changes fields to other valid values,
 * sets it, and compares a fresh read field by field.  A refused setting
 * changes nothing.
 */
public class RoundTripTest {
    private static KXSessionInfo s;

    @BeforeClass
    public static void login() throws Exception {
        s = Sim.admin();
    }

    @AfterClass
    public static void logout() throws Exception {
        Sim.logout(s);
    }

    // ---- drives

    @Test
    @Category(Smoke.class)
    public void driveRestoration() throws Exception {
        DiskDriveRestoration r = JNI.KX_GetDiskDriveRestoration(UNIT, s);
        r.mode = 2;
        r.restoration = 3;
        r.dynamic_sparing = 1 - r.dynamic_sparing;
        r.interval = 600;
        r.unit_size = 4096;
        r.sparemode = 1;
        r.no_copyback_allunit = 1;
        JNI.KX_SetDiskDriveRestoration(UNIT, s, r);
        assertSameFields(r, JNI.KX_GetDiskDriveRestoration(UNIT, s));

        DiskDriveRestoration bad = JNI.KX_GetDiskDriveRestoration(UNIT, s);
        bad.mode = 3;
        bad.interval = 1;
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetDiskDriveRestoration(UNIT, s, bad));
        assertSameFields(r, JNI.KX_GetDiskDriveRestoration(UNIT, s));
    }

    @Test
    public void otherDriveSettings() throws Exception {
        SATADriveInformation sata = JNI.KX_GetSATADriveInformation(UNIT, s);
        sata.sweep_info.sweep_valid = 1 - sata.sweep_info.sweep_valid;
        sata.sweep_info.interval_time = 48;
        sata.sweep_info.stop_time = 7;
        sata.flash_info.compare_mode = 2;
        sata.flash_info.drv_flash_io_count = 123456;
        sata.smart_info.reassign_thres = 99;
        JNI.KX_SetSATADriveInformation(UNIT, s, sata);
        assertSameFields(sata, JNI.KX_GetSATADriveInformation(UNIT, s));

        SATADriveRestoration copy = JNI.KX_GetSATADriveRestoration(UNIT, s);
        copy.collect_copy_times = 17;
        JNI.KX_SetSATADriveRestoration(UNIT, s, copy);
        assertSameFields(copy, JNI.KX_GetSATADriveRestoration(UNIT, s));

        DriveResponseDiag diag = JNI.KX_GetDriveResponseDiag(UNIT, s);
        diag.set_mode = 1;
        diag.mode = 2;
        diag.threshold = 45;
        diag.sata_diag = 1 - diag.sata_diag;
        diag.autodiag_threshold = 5;
        JNI.KX_SetDriveResponseDiag(UNIT, s, diag);
        assertSameFields(diag, JNI.KX_GetDriveResponseDiag(UNIT, s));
    }

    @Test
    public void quickFormatOption() throws Exception {
        QuickFormatOption o = JNI.KX_GetQuickFormatOption(UNIT, s);
        o.change_index = 1;
        o.priority_mode = 1 - o.priority_mode;
        o.format_mode = 1 - o.format_mode;
        JNI.KX_SetQuickFormatOption(UNIT, s, o);
        assertSameFields(o, JNI.KX_GetQuickFormatOption(UNIT, s));
    }

    // ---- accounts and the audit log

    @Test
    @Category(Smoke.class)
    public void auditLogSettings() throws Exception {
        KXAuditLogInformation a = JNI.KX_GetKXAuditLogInformation(UNIT, s);
        assertEquals(2, a.auditlog_server.server.length);
        a.auditlog_server.serverall_used = 1;
        a.auditlog_server.server[0].server_used = 1;
        a.auditlog_server.server[0].ip_address = "198.51.100.7";
        a.auditlog_server.server[1].server_used = 0;
        a.auditlog_server.server[1].ip_address = "203.0.113.254";
        a.auditlog_internallog.internallog_used = 0;
        JNI.KX_SetKXAuditLogInformation(UNIT, s, a);
        assertSameFields(a, JNI.KX_GetKXAuditLogInformation(UNIT, s));

        KXAuditLogInformation bad = JNI.KX_GetKXAuditLogInformation(UNIT, s);
        bad.auditlog_server.server[1].server_used = 1;
        bad.auditlog_server.server[1].ip_address = "not-an-address";
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetKXAuditLogInformation(UNIT, s, bad));
        assertSameFields(a, JNI.KX_GetKXAuditLogInformation(UNIT, s));
    }

    @Test
    public void userLanSettings() throws Exception {
        KXUserLANInformation lan = JNI.KX_GetKXUserLANInformation(UNIT, s);
        assertEquals(2, lan.ctl.length);
        lan.ctl[0].set_ipaddress = "192.0.2.50";
        lan.ctl[0].set_subnet = "255.255.0.0";
        lan.ctl[0].set_gateway = "";
        lan.ctl[1].dhcp = 1;
        lan.ctl[1].set_linkspeed_duplex = 3;
        lan.mainte_ip_change_mode = 1;
        lan.logout_instruction = 1;
        JNI.KX_SetKXUserLANInformation(UNIT, s, lan);
        assertSameFields(lan, JNI.KX_GetKXUserLANInformation(UNIT, s));
    }

    @Test
    public void accountChangesAndTheAlertCheckUser() throws Exception {
        Sim.createAccount(s, "auditor", "auditor-pw", Sim.role(s, "Monitor"));
        KXAccountBaseInfo b = new KXAccountBaseInfo();
        b.user_id = "auditor";
        b.set_passwd = 0;
        b.passwd = "";
        b.account_type = 1;
        b.role = Sim.role(s, "StorageAdmin");
        b.account_enable = 0;
        JNI.KX_ChangeAccount(UNIT, s, b);
        KXAccountInfo got = account(JNI.KX_GetAccountInformation(UNIT, s), "auditor");
        assertSameFields(b, got.account_base_info);
        expect(Sim.AUTH_FAILED, () -> Sim.login("auditor", "auditor-pw"));  // disabled

        AlertCheckUser alert = new AlertCheckUser();
        alert.user_id = Sim.ADMIN;
        alert.passwd = Sim.PASSWORD;
        alert.account_enable = 1;
        JNI.KX_SetAlertCheckUser(alert);
        alert.passwd = "";  // never read back
        assertSameFields(alert, JNI.KX_GetAlertCheckUser());
        KXSessionInfo check = JNI.KX_LoginKXAccountAlertCheck(UNIT, 0);
        assertEquals("drives offline or failed", 0, JNI.KX_AlertCheck(UNIT, check, 0));
        JNI.KX_LogoutKXAccountAlertCheck(UNIT, check, new KXAccountLogout());
    }

    // ---- units

    @Test
    @Category(Smoke.class)
    public void unitIdentifier() throws Exception {
        KXUserInfo u = new KXUserInfo();
        u.user = Sim.ADMIN;
        u.passwd = Sim.PASSWORD;
        JNI.KX_LoginKXUnit(UNIT, 1, u);
        try {
            UnitIdentifier id = JNI.KX_GetUnitIdentifier(UNIT);
            assertEquals(2, id.ctl.length);
            id.equipment_id = "A7Z9";
            id.ctl[0].ctrl_name_mode = 1;
            id.ctl[0].id_front = "FRONT-0";
            id.ctl[1].id_rear = "R1";
            JNI.KX_SetUnitIdentifier(UNIT, id);
            assertSameFields(id, JNI.KX_GetUnitIdentifier(UNIT));
        } finally {
            JNI.KX_LogoutKXUnit(UNIT, 1);
        }
    }

    // ---- LU cache settings

    @Test
    @Category(Smoke.class)
    public void prefetchSizes() throws Exception {
        PrefetchInformation p = JNI.KX_GetPrefetchInformation(UNIT, s);
        p.stg_rd0 = 512;
        p.stg_rd1 = 1024;
        p.stg_rd5 = 16384;
        p.stg_next = 0;
        p.stg_hed_size = 77;
        JNI.KX_SetPrefetchInformation(UNIT, s, p);
        assertSameFields(p, JNI.KX_GetPrefetchInformation(UNIT, s));
    }

    @Test
    public void luCachePartitionsPrefetchTuningAndResidentLus() throws Exception {
        LuCachePartition c = JNI.KX_GetLuCachePartition(UNIT, s);
        assertEquals(4096, c.current_prt_num.length);
        assertEquals("an LU number not made", -1, c.current_prt_num[4095]);
        c.option = 1;
        c.current_prt_num[0] = 3;
        c.reserve_prt_num[0] = 4;
        c.now_prt_num[0] = 3;
        c.pair_prt_num[0] = 15;
        c.pair_prt_num[1] = -1;
        JNI.KX_SetLuCachePartition(UNIT, s, c);
        assertSameFields(c, JNI.KX_GetLuCachePartition(UNIT, s));
        assertEquals(3, JNI.KX_GetLogicalUnit1(UNIT, s, 0).cachepart_no);

        PrefetchTuning t = JNI.KX_GetPrefetchTuning(UNIT, s);
        t.set_mode = 1;
        t.setting_range = 1;
        t.seq_count = 16;
        t.next_pre_mode = 2;
        t.lu_range[2].multi_stream_read = 1;
        t.lu_range[2].pre_std = 2;
        t.lu[2].pre_size_basis = 65535;
        t.lu[2].pre_size_fixation = 1;
        JNI.KX_SetPrefetchTuning(UNIT, s, t);
        assertSameFields(t, JNI.KX_GetPrefetchTuning(UNIT, s));

        TurboLu turbo = JNI.KX_GetTurboLU(UNIT, s);
        turbo.option = 1;
        turbo.ctl[0].current_status = 1;
        turbo.ctl[0].current_assign = 1;
        turbo.ctl[0].current_lun = 3;
        turbo.ctl[1].reserve_assign = 1;
        turbo.ctl[1].reserve_lun = 4;
        JNI.KX_SetTurboLU(UNIT, s, turbo);
        assertSameFields(turbo, JNI.KX_GetTurboLU(UNIT, s));
        TurboLu twice = JNI.KX_GetTurboLU(UNIT, s);
        twice.ctl[1].current_assign = 1;  // one LU resident on both controllers
        twice.ctl[1].current_lun = 3;
        expect(Sim.BUSY, () -> JNI.KX_SetTurboLU(UNIT, s, twice));
        assertSameFields(turbo, JNI.KX_GetTurboLU(UNIT, s));
    }

    // ---- pools and the wizard

    @Test
    @Category(Smoke.class)
    public void poolMembersAndThreshold() throws Exception {
        // The pool record carries no detail to Java: what shows is whether a
        // pool holds LUs, and that its members are held.
        assertEquals(0, JNI.KX_GetPoolInformation(UNIT, s).ctl[0].pool_enable_count);
        JNI.KX_PoolLUAdd(UNIT, s, 0, 0, 6);
        PoolInfo p = JNI.KX_GetPoolInformation(UNIT, s);
        assertEquals(1, p.ctl[0].pool_enable_count);
        assertEquals(0, p.ctl[1].pool_enable_count);
        expect(Sim.EXISTS, () -> JNI.KX_PoolLUAdd(UNIT, s, 0, 0, 6));
        expect(Sim.BUSY, () -> JNI.KX_PoolLUAdd(UNIT, s, 1, 0, 6));
        expect(Sim.BUSY, () -> JNI.KX_LogicalUnitDeleteByLUN(UNIT, s, 6));
        JNI.KX_PoolLUAllDelete(UNIT, s, 0, 0);
        assertEquals(0, JNI.KX_GetPoolInformation(UNIT, s).ctl[0].pool_enable_count);

        ChgPoolInfo c = new ChgPoolInfo();
        c.ctl_no = 1;
        c.pool_no = 0;
        c.poolinfo_chg_index = 0;
        c.threshold = 65;
        JNI.KX_ChangePoolInformation(UNIT, s, c);
        c.threshold = 100;
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_ChangePoolInformation(UNIT, s, c));
        c.threshold = 65;
        c.pool_no = 1;
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_ChangePoolInformation(UNIT, s, c));
    }

    @Test
    @Category(Smoke.class)
    public void currentWizardParameters() throws Exception {
        KXUserInfo u = new KXUserInfo();
        u.user = Sim.ADMIN;
        u.passwd = Sim.PASSWORD;
        JNI.KX_LoginKXUnit(UNIT, 2, u);
        try {
            NowWZParameter p = JNI.KX_GetNowWZParam(UNIT, 1);
            p.fd_backup = 1 - p.fd_backup;
            p.ctrl_id.ctrl_name_mode = 1;
            p.ctrl_id.id_front = "WZ-1";
            JNI.KX_SetNowWZParam(UNIT, 1, p);
            assertSameFields(p, JNI.KX_GetNowWZParam(UNIT, 1));
            NowWZParameter other = JNI.KX_GetNowWZParam(UNIT, 0);
            assertNotEquals("WZ-1", other.ctrl_id.id_front);
        } finally {
            JNI.KX_LogoutKXUnit(UNIT, 2);
        }
    }

    @Test
    public void wizardParametersKeptByTheUnitAndInAFile() throws Exception {
        KXUserInfo u = new KXUserInfo();
        u.user = Sim.ADMIN;
        u.passwd = Sim.PASSWORD;
        JNI.KX_LoginKXUnit(UNIT, 2, u);
        try {
            String file = Sim.dir().resolve("wizard.param").toString();
            WizardParam p = JNI.KX_GetWizardParam(UNIT, "", 0);
            WizardParam original = JNI.KX_GetWizardParam(UNIT, "", 0);
            p.fd_backup = 1 - p.fd_backup;
            p.drive_capacity.spare = 4;
            p.drive_capacity.row[0] = 450;
            p.inquiry.ansi_version = 7;
            p.inquiry.product = "LAB-ARRAY";
            p.lan_conf[1].ip_address = "192.0.2.99";
            p.lan_conf[1].subnet = "";
            JNI.KX_TestWizardParam(UNIT, p, "", 0);
            assertSameFields(original, JNI.KX_GetWizardParam(UNIT, "", 0));  // a test keeps nothing

            // Written to a file, read back from it; the unit's own stay as they were.
            JNI.KX_SetWizardParam(UNIT, p, file, 1);
            assertSameFields(p, JNI.KX_GetWizardParam(UNIT, file, 1));
            assertSameFields(original, JNI.KX_GetWizardParam(UNIT, "", 0));

            JNI.KX_SetWizardParam(UNIT, p, "", 0);
            assertSameFields(p, JNI.KX_GetWizardParam(UNIT, "", 0));

            p.inquiry.ansi_version = 8;
            expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetWizardParam(UNIT, p, "", 0));
            expect(12304, () -> JNI.KX_GetWizardParam(UNIT, file + ".missing", 1));
        } finally {
            JNI.KX_LogoutKXUnit(UNIT, 2);
        }
    }

    private static KXAccountInfo account(KXAccountInfoList list, String user) {
        for (int i = 0; i < list.regist_account_count; i++) {
            if (list.account_info[i].account_base_info.user_id.equals(user)) {
                return list.account_info[i];
            }
        }
        throw new AssertionError("no account " + user);
    }
}
