package simtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;
import static simtest.Sim.assertSameFields;
import static simtest.Sim.expect;

import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import org.junit.AfterClass;
import org.junit.BeforeClass;
import org.junit.Test;
import org.junit.experimental.categories.Category;
import orvane.str.diskarray.FibreInformation;
import orvane.str.diskarray.FibreInformationPermission;
import orvane.str.diskarray.FibreInformationSecurity;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUserInfo;
import orvane.str.diskarray.TargetId;
import orvane.str.diskarray.WWNHGInformation;
import orvane.str.diskarray.WWNHGPortInfo;
import orvane.str.diskarray.WWNInformation;
import orvane.str.diskarray.WWNPermInfo;

/**
 * Fibre Channel ports, WWN security and target IDs through the bridge: the
 * settings read back (through both shapes of the permission table), refusals
 * with their codes and nothing changed, the target-ID and WWN permission files
 * imported and malformed ones refused.  Each test works on ports of its own.
 */
public class FibreTest {
    private static final int FILE_ERROR = 12304;
    private static final int BAD_FILE = 12305;
    private static KXSessionInfo s;

    @BeforeClass
    public static void login() throws Exception {
        s = Sim.admin();
        KXUserInfo u = new KXUserInfo();
        u.user = Sim.ADMIN;
        u.passwd = Sim.PASSWORD;
        JNI.KX_LoginKXUnit(UNIT, 1, u);  // the older calls act for the unit's login
    }

    @AfterClass
    public static void logout() throws Exception {
        JNI.KX_LogoutKXUnit(UNIT, 1);
        Sim.logout(s);
    }

    private static FibreInformation[] fibre() throws Exception {
        FibreInformation[] f = JNI.KX_GetFibreInformation(UNIT, s);
        assertEquals(2, f.length);
        return f;
    }

    private static void permit(FibreInformationPermission p, String wwpn, String node, String id, int... luns) {
        p.port_name = wwpn;
        p.node_name = node;
        p.n_port_id = id;
        p.lun_security_bitmap = new byte[256];
        for (int l : luns) {
            p.lun_security_bitmap[l / 8] |= (byte) (1 << (l % 8));
        }
    }

    private static Path write(String name, String text) throws Exception {
        Path p = Sim.dir().resolve(name);
        Files.write(p, text.getBytes(StandardCharsets.US_ASCII));
        return p;
    }

    // ---- ports and WWN security

    @Test
    @Category(Smoke.class)
    public void portSettingsAndPermissionsReadBackInBothShapes() throws Exception {
        FibreInformation[] f = fibre();
        assertEquals("four ports", 0x0f, f[0].port_valid);
        String wwpn00 = f[0].port[0].port_name;
        assertEquals(16, wwpn00.length());
        assertTrue(wwpn00, wwpn00.startsWith("5F0000") && wwpn00.endsWith("01"));
        assertEquals("hosts logged in: link up", "010100", f[0].port[0].n_port_id);

        f[0].lun_security = 1;
        f[1].lun_security = 1;
        f[0].topology[1] = 2;
        f[0].port[1].set_speed = 4;
        f[0].port[1].frame_size = 1;
        FibreInformationSecurity sec = f[0].security[1];
        sec.access_guard = 1;
        sec.all_lun_security = 1;
        sec.security_chk_lv = 2;
        sec.permission_count = 2;
        permit(sec.permission[0], "10000000c9000001", "20000000C9000001", "0a0b0c", 0, 9, 2047);
        permit(sec.permission[1], "10000000C9000002", "", "");
        JNI.KX_SetFibreInformation(UNIT, s, f[0], f[1]);

        FibreInformation[] back = fibre();
        sec.permission[0].port_name = "10000000C9000001";  // names read back in capitals
        sec.permission[0].n_port_id = "0A0B0C";
        assertSameFields(sec, back[0].security[1]);
        assertEquals(1, back[0].lun_security);
        assertEquals(1, back[1].lun_security);
        assertEquals(2, back[0].topology[1]);
        assertEquals("loop in use", 2, back[0].topology_ref[1]);
        assertEquals(4, back[0].port[1].set_speed);
        assertEquals(4, back[0].port[1].refer_speed);
        assertEquals(1, back[0].port[1].frame_size);
        assertEquals("read only", wwpn00, back[0].port[0].port_name);

        // The older shape shows the same table; set there, the N_Port ID stays.
        WWNInformation w = JNI.KX_GetWWNInformation(UNIT);
        assertEquals(1, w.lun_security_opt);
        assertEquals(1, w.ctl[0].port[1].lun_security);
        assertEquals(2, w.ctl[0].port[1].permission_count);
        WWNPermInfo old = w.ctl[0].port[1].permission[0];
        assertEquals("10000000C9000001", old.port_name);
        old.lun_security_bitmap[1] = 0;  // LU 9 no more
        old.lun_security_bitmap[3] = 1;  // LU 24 instead
        JNI.KX_SetWWNInformation(UNIT, w);
        assertSameFields(w, JNI.KX_GetWWNInformation(UNIT));
        FibreInformationPermission now = fibre()[0].security[1].permission[0];
        assertEquals("0A0B0C", now.n_port_id);
        assertEquals(1, now.lun_security_bitmap[3]);
        assertEquals(0, now.lun_security_bitmap[1]);

        // Refused whole, nothing changed.
        FibreInformation[] before = fibre();
        FibreInformation[] bad = fibre();
        bad[1].lun_security = 0;  // the switch differs between the records
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetFibreInformation(UNIT, s, bad[0], bad[1]));
        bad[1].lun_security = 1;
        bad[1].topology[2] = 1;
        permit(bad[0].security[2].permission[0], "10000000C900001", "", "");  // 15 digits
        bad[0].security[2].permission_count = 1;
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetFibreInformation(UNIT, s, bad[0], bad[1]));
        permit(bad[0].security[2].permission[0], "10000000C9000007", "", "");
        permit(bad[0].security[2].permission[1], "10000000c9000007", "", "");  // the same name
        bad[0].security[2].permission_count = 2;
        expect(Sim.EXISTS, () -> JNI.KX_SetFibreInformation(UNIT, s, bad[0], bad[1]));
        bad[0].security[2].permission_count = 129;
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetFibreInformation(UNIT, s, bad[0], bad[1]));
        assertSameFields(before, fibre());
    }

    @Test
    public void hostsAssignedToHostGroupsReadBack() throws Exception {
        WWNHGInformation w = JNI.KX_GetWWNHGInformation(UNIT, s);
        WWNHGPortInfo p = w.ctl[1].port[2];
        assertEquals("the two hosts logged in, unassigned", 2, p.wwn_count);
        assertEquals(-1, p.wwn[0].hg_number);
        assertEquals(1, p.wwn[0].hostflag);
        assertEquals("10000000C0010201", p.wwn[0].port_name);
        p.wwn[1].hg_number = 0;
        p.wwn[1].wname = "backup-hba";
        JNI.KX_SetWWNHGInformation(UNIT, s, w);
        WWNHGPortInfo back = JNI.KX_GetWWNHGInformation(UNIT, s).ctl[1].port[2];
        assertEquals(2, back.wwn_count);
        assertSameFields(p.wwn[1], back.wwn[0]);  // the assigned come first
        assertSameFields(p.wwn[0], back.wwn[1]);

        WWNHGInformation bad = JNI.KX_GetWWNHGInformation(UNIT, s);
        bad.ctl[1].port[2].wwn[1].hg_number = 77;  // no such group on the port
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_SetWWNHGInformation(UNIT, s, bad));
        assertSameFields(back, JNI.KX_GetWWNHGInformation(UNIT, s).ctl[1].port[2]);
    }

    // ---- target IDs

    @Test
    public void targetIdsReadBackAndImport() throws Exception {
        TargetId[] t = JNI.KX_GetTargetId(UNIT, -1);
        assertEquals(2, t.length);
        assertEquals(1, t[1].ctrl_flag);
        assertEquals("unused", (byte) 255, t[1].target_config[3].multi[0]);
        TargetId c1 = t[1];
        c1.target_id_mode = 1;
        c1.target_config[3].single = 9;
        c1.target_config[3].multi[0] = 3;
        c1.target_config[3].multi[1] = 127;
        c1.target_config[3].mapping[0].lun[7] = 1;
        c1.target_config[3].mapping[15].lun[0] = 1;
        JNI.KX_SetTargetId(UNIT, 1, c1, 3);
        TargetId[] back = JNI.KX_GetTargetId(UNIT, -1);
        assertSameFields(t, back);
        TargetId[] onePort = JNI.KX_GetTargetId(UNIT, 3);
        assertSameFields(back[1].target_config[3], onePort[1].target_config[3]);
        assertEquals("the other ports zero", 0, onePort[1].target_config[0].multi[0]);

        TargetId bad = JNI.KX_GetTargetId(UNIT, -1)[1];
        bad.target_config[3].mapping[1].lun[100] = 1;  // no LU 100
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_SetTargetId(UNIT, 1, bad, 3));
        bad.target_config[3].mapping[1].lun[100] = 0;
        bad.target_config[3].single = -1;
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetTargetId(UNIT, 1, bad, 3));
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetTargetId(UNIT, 2, bad, -1));
        assertSameFields(back, JNI.KX_GetTargetId(UNIT, -1));

        // A file for controller 0: the tables returned are the array's now.
        Path good = write("targets.txt", "# lab layout\npernix-sim target-id 1\n"
                + "controller ctl=0 mode=1\n"
                + "port port=0 ctl=0 single=5 multi=1,2,255\n"
                + "target ctl=0 port=0 target=1 luns=0-2,6\n"
                + "\nend\n");
        TargetId[] imported = JNI.KX_TargetIdImport(UNIT, good.toString());
        assertEquals(1, imported[0].target_id_mode);
        assertEquals(5, imported[0].target_config[0].single);
        assertEquals(2, imported[0].target_config[0].multi[1]);
        assertEquals(1, imported[0].target_config[0].mapping[1].lun[2]);
        assertEquals(0, imported[0].target_config[0].mapping[1].lun[3]);
        assertEquals(1, imported[0].target_config[0].mapping[1].lun[6]);
        assertSameFields(back[1], imported[1]);  // not named in the file
        TargetId[] now = JNI.KX_GetTargetId(UNIT, -1);
        assertSameFields(imported, now);

        String[][] malformed = {
            {"header", "pernix-sim target-id 2\ncontroller ctl=0 mode=0\nend\n"},
            {"no-end", "pernix-sim target-id 1\ncontroller ctl=0 mode=0\n"},
            {"after-end", "pernix-sim target-id 1\ncontroller ctl=0 mode=0\nend\ncontroller ctl=1 mode=0\n"},
            {"mode", "pernix-sim target-id 1\ncontroller ctl=0 mode=2\nend\n"},
            {"port-first", "pernix-sim target-id 1\nport ctl=0 port=0 single=1\ncontroller ctl=0 mode=0\nend\n"},
            {"twice", "pernix-sim target-id 1\ncontroller ctl=0 mode=0\ncontroller ctl=0 mode=1\nend\n"},
            {"field-twice", "pernix-sim target-id 1\ncontroller ctl=0 ctl=0 mode=0\nend\n"},
            {"lun-range", "pernix-sim target-id 1\ncontroller ctl=0 mode=0\n"
                    + "target ctl=0 port=0 target=0 luns=120-128\nend\n"},
            {"single", "pernix-sim target-id 1\ncontroller ctl=0 mode=0\nport ctl=0 port=1 single=128\nend\n"},
        };
        for (String[] m : malformed) {
            Path p = write(m[0] + ".txt", m[1]);
            assertEquals(m[0], BAD_FILE, Sim.codeOf(() -> JNI.KX_TargetIdImport(UNIT, p.toString())));
        }
        Path unmade = write("unmade.txt",
                "pernix-sim target-id 1\ncontroller ctl=0 mode=0\ntarget ctl=0 port=0 target=0 luns=100\nend\n");
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_TargetIdImport(UNIT, unmade.toString()));
        expect(FILE_ERROR, () -> JNI.KX_TargetIdImport(UNIT, Sim.dir().resolve("none.txt").toString()));
        assertSameFields(now, JNI.KX_GetTargetId(UNIT, -1));
    }

    // ---- the WWN permission file

    @Test
    public void permissionFileReadForOnePortAndMalformedOnesRefused() throws Exception {
        Path good = write("perms.txt", "pernix-sim wwn-permissions 1\n"
                + "permission ctl=0 port=3 wwpn=10000000C9000011 node=20000000C9000011 n_port_id=0A0B0D luns=0,9,2047\n"
                + "permission ctl=0 port=3 wwpn=10000000C9000012 luns=none\n"
                + "permission ctl=1 port=0 wwpn=10000000C9000013 luns=5\n"
                + "end\n");
        FibreInformation[] before = fibre();
        FibreInformationPermission[] p = JNI.KX_FibreInfoPermissionImport(UNIT, good.toString(), 0, 3);
        assertEquals("the port's permissions only", 2, p.length);
        FibreInformationPermission want = new FibreInformationPermission();
        permit(want, "10000000C9000011", "20000000C9000011", "0A0B0D", 0, 9, 2047);
        assertSameFields(want, p[0]);
        permit(want, "10000000C9000012", "", "");
        assertSameFields(want, p[1]);
        assertEquals(0, JNI.KX_FibreInfoPermissionImport(UNIT, good.toString(), 1, 1).length);
        assertSameFields(before, fibre());  // nothing in the array changes

        String[][] malformed = {
            {"p-header", "pernix-sim wwn-permissions 2\nend\n"},
            {"p-no-end", "pernix-sim wwn-permissions 1\npermission ctl=0 port=3 wwpn=10000000C9000011 luns=1\n"},
            {"p-missing", "pernix-sim wwn-permissions 1\npermission ctl=0 port=3 luns=1\nend\n"},
            {"p-wwpn", "pernix-sim wwn-permissions 1\npermission ctl=0 port=3 wwpn=10000000C90000 luns=1\nend\n"},
            {"p-lun", "pernix-sim wwn-permissions 1\npermission ctl=0 port=3 wwpn=10000000C9000011 luns=2048\nend\n"},
            {"p-twice", "pernix-sim wwn-permissions 1\n"
                    + "permission ctl=0 port=3 wwpn=10000000C9000011 luns=1\n"
                    + "permission ctl=0 port=3 wwpn=10000000C9000011 luns=2\nend\n"},
        };
        for (String[] m : malformed) {
            Path f = write(m[0] + ".txt", m[1]);
            assertEquals(m[0], BAD_FILE,
                    Sim.codeOf(() -> JNI.KX_FibreInfoPermissionImport(UNIT, f.toString(), 0, 3)));
        }
        expect(FILE_ERROR, () -> JNI.KX_FibreInfoPermissionImport(UNIT, Sim.dir().resolve("no.txt").toString(), 0, 3));
    }
}
