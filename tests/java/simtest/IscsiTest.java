package simtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertTrue;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;
import static simtest.Sim.assertSameFields;
import static simtest.Sim.expect;

import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import org.junit.AfterClass;
import org.junit.BeforeClass;
import org.junit.Test;
import org.junit.experimental.categories.Category;
import orvane.str.diskarray.DeleteiSCSITarget;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXiSCSICHAPUserInfo;
import orvane.str.diskarray.KXiSCSICHAPUserPortInfo;
import orvane.str.diskarray.KXiSCSIInitiatorInfo;
import orvane.str.diskarray.KXiSCSIInitiatorPortInfo;
import orvane.str.diskarray.KXiSCSILoginInitiatorInformationAll;
import orvane.str.diskarray.KXiSCSIPortInformation;
import orvane.str.diskarray.KXiSCSIPortPortInfo;
import orvane.str.diskarray.KXiSCSITargetInfo;
import orvane.str.diskarray.KXiSCSITargetPortInfo;

/**
 * iSCSI ports, targets, initiators and CHAP users through the bridge: settings
 * read back field by field, secrets taken but never read back (nor kept in
 * the database file as given), refusals with their codes and nothing changed,
 * the CHAP user file imported and a malformed one refused whole.  Each test
 * works on ports of its own.
 */
public class IscsiTest {
    private static final int FILE_ERROR = 12304;
    private static final int BAD_FILE = 12305;
    private static KXSessionInfo s;

    @BeforeClass
    public static void login() throws Exception {
        s = Sim.admin();
    }

    @AfterClass
    public static void logout() throws Exception {
        Sim.logout(s);
    }

    private static KXiSCSITargetPortInfo targets(int ctl, int port) throws Exception {
        return JNI.KX_GetiSCSITargetInformationAll(UNIT, s).ctl[ctl].port[port];
    }

    private static KXiSCSICHAPUserPortInfo chap(int ctl, int port) throws Exception {
        return JNI.KX_GetiSCSICHAPUserInformationAll(UNIT, s).ctl[ctl].port[port];
    }

    private static KXiSCSITargetInfo target(String alias, int auth, String user, String secret) {
        KXiSCSITargetInfo t = new KXiSCSITargetInfo();
        t.target_name = alias;
        t.iscsi_name = "";
        t.authmethod = auth == 1 ? 1 : 0;
        t.algorithm = 0;
        t.auth = auth;
        t.user_name = user;
        t.secret = secret;
        return t;
    }

    private static KXiSCSICHAPUserInfo user(String name, String secret, int... targets) {
        KXiSCSICHAPUserInfo u = new KXiSCSICHAPUserInfo();
        u.user_valid = 1;
        u.ctrl_flag = 0;
        u.user_name = name;
        u.secret = secret;
        for (int t : targets) {
            u.target_bitmap[t / 8] |= (byte) (1 << (t % 8));
        }
        return u;
    }

    /** The database file and its log: what someone who copies them reads. */
    private static boolean storedPlain(String secret) throws Exception {
        byte[] needle = secret.getBytes(StandardCharsets.US_ASCII);
        for (String suffix : new String[] {"", "-wal"}) {
            Path p = Paths.get(Sim.db() + suffix);
            if (Files.exists(p) && indexOf(Files.readAllBytes(p), needle) >= 0) {
                return true;
            }
        }
        return false;
    }

    private static int indexOf(byte[] hay, byte[] needle) {
        outer:
        for (int i = 0; i + needle.length <= hay.length; i++) {
            for (int j = 0; j < needle.length; j++) {
                if (hay[i + j] != needle[j]) {
                    continue outer;
                }
            }
            return i;
        }
        return -1;
    }

    // ---- ports

    @Test
    @Category(Smoke.class)
    public void portSettingsReadBackAndARefusalChangesNothing() throws Exception {
        KXiSCSIPortInformation info = JNI.KX_GetiSCSIPortInformation(UNIT, s);
        assertEquals(2, info.ctl.length);
        KXiSCSIPortPortInfo p = info.ctl[1].port[3];
        assertEquals(1, p.port_valid);
        assertEquals("192.168.3.201", p.ip_address);
        for (var c : info.ctl) {
            for (var q : c.port) {
                q.set_valid = 0;
            }
        }
        p.set_valid = 1;
        p.ip_address = "10.20.30.40";
        p.subnet = "255.255.252.0";
        p.gateway = "10.20.28.1";
        p.port_num = 3270;
        p.keep_alive_timer = 600;
        p.mtu = 9000;
        JNI.KX_SetiSCSIPortInformation(UNIT, s, info);
        KXiSCSIPortInformation back = JNI.KX_GetiSCSIPortInformation(UNIT, s);
        for (var c : info.ctl) {
            for (var q : c.port) {
                q.set_valid = q.port_valid;  // every port the array has reads 1
            }
        }
        assertSameFields(info, back);

        KXiSCSIPortInformation bad = JNI.KX_GetiSCSIPortInformation(UNIT, s);
        for (var c : bad.ctl) {
            for (var q : c.port) {
                q.set_valid = 0;
            }
        }
        bad.ctl[1].port[3].set_valid = 1;
        bad.ctl[1].port[3].mtu = 1400;
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetiSCSIPortInformation(UNIT, s, bad));
        bad.ctl[1].port[3].mtu = 1500;
        bad.ctl[1].port[3].gateway = "10.21.0.1";  // beyond the port's subnet
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetiSCSIPortInformation(UNIT, s, bad));
        bad.ctl[1].port[3].gateway = "";
        bad.ctl[0].port[0].set_valid = 1;
        bad.ctl[0].port[0].ip_address = "10.20.30.40";  // the other controller's port's address
        bad.ctl[0].port[0].subnet = "255.255.255.0";
        expect(Sim.EXISTS, () -> JNI.KX_SetiSCSIPortInformation(UNIT, s, bad));
        assertSameFields(back, JNI.KX_GetiSCSIPortInformation(UNIT, s));
    }

    // ---- targets and initiators

    @Test
    public void targetsInitiatorsAndSecurityReadBack() throws Exception {
        KXiSCSITargetPortInfo before = targets(0, 1);
        assertEquals(1, before.target_count);
        assertEquals("T000", before.target[0].target_name);

        JNI.KX_CreateiSCSITarget(UNIT, s, 0, 1, -1, target("backup", 1, "array-c0p1", "Mutual-Secret-0001"));
        JNI.KX_CreateiSCSITarget(UNIT, s, 0, 1, 7, target("archive", 0, "", ""));
        KXiSCSITargetPortInfo t = targets(0, 1);
        assertEquals(3, t.target_count);
        KXiSCSITargetInfo made = t.target[1];
        assertEquals("the lowest free slot", 1, made.target_valid);
        assertEquals("backup", made.target_name);
        assertTrue(made.iscsi_name, made.iscsi_name.startsWith("iqn.2014-04.com.pernix:sim."));
        assertTrue(made.iscsi_name, made.iscsi_name.endsWith(".c0p1.t001"));
        assertEquals(1, made.auth);
        assertEquals("array-c0p1", made.user_name);
        assertEquals("never read back", "", made.secret);
        assertEquals("archive", t.target[7].target_name);

        // Set again as read (no secret given): the secret stays, so mutual CHAP still holds.
        made.target_name = "backup-2";
        made.iscsi_name = "iqn.2020-01.org.example:backup";
        JNI.KX_ChangeiSCSITarget(UNIT, s, 0, 1, 1, made);
        assertSameFields(made, targets(0, 1).target[1]);
        assertTrue("the user name is found where it is kept", storedPlain("array-c0p1"));
        assertFalse("the secret as given in the database", storedPlain("Mutual-Secret-0001"));

        expect(Sim.EXISTS, () -> JNI.KX_CreateiSCSITarget(UNIT, s, 0, 1, 1, target("other", 0, "", "")));
        expect(Sim.EXISTS, () -> JNI.KX_CreateiSCSITarget(UNIT, s, 0, 1, -1, target("archive", 0, "", "")));
        expect(Sim.BAD_PARAMETER,
                () -> JNI.KX_CreateiSCSITarget(UNIT, s, 0, 1, -1, target("mutual", 1, "array-x", "")));
        expect(Sim.BAD_PARAMETER,
                () -> JNI.KX_CreateiSCSITarget(UNIT, s, 0, 1, -1, target("short", 1, "array-x", "short")));
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_ChangeiSCSITarget(UNIT, s, 0, 1, 9, made));
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_CreateiSCSITarget(UNIT, s, 2, 0, -1, target("x", 0, "", "")));

        // Initiators registered on the port, each reaching targets by bit.
        KXiSCSIInitiatorPortInfo ini = JNI.KX_GetiSCSIInitiatorInformationAll(UNIT, s).ctl[0].port[1];
        assertEquals(0, ini.initiator_count);
        KXiSCSIInitiatorInfo a = ini.initiator[4];
        a.initiator_valid = 1;
        a.initiator_name = "linux-02";
        a.iscsi_name = "iqn.1994-05.com.redhat:sim-linux-02";
        a.target_bitmap[0] = (byte) 0x83;  // targets 0, 1 and 7
        JNI.KX_SetiSCSIInitiatortInformation(UNIT, s, 0, 1, ini);
        KXiSCSIInitiatorPortInfo iniBack = JNI.KX_GetiSCSIInitiatorInformationAll(UNIT, s).ctl[0].port[1];
        assertEquals(1, iniBack.initiator_count);
        assertSameFields(a, iniBack.initiator[4]);
        KXiSCSIInitiatorPortInfo twoBad = JNI.KX_GetiSCSIInitiatorInformationAll(UNIT, s).ctl[0].port[1];
        twoBad.initiator[5].initiator_valid = 1;
        twoBad.initiator[5].initiator_name = "other";
        twoBad.initiator[5].iscsi_name = "iqn.1994-05.com.redhat:sim-linux-02";  // the same host twice
        expect(Sim.EXISTS, () -> JNI.KX_SetiSCSIInitiatortInformation(UNIT, s, 0, 1, twoBad));
        twoBad.initiator[5].iscsi_name = "iqn.1991-05.com.microsoft:sim-win-01";
        twoBad.initiator[5].target_bitmap[0] = 0x04;  // target 2 is not made
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_SetiSCSIInitiatortInformation(UNIT, s, 0, 1, twoBad));
        assertSameFields(iniBack, JNI.KX_GetiSCSIInitiatorInformationAll(UNIT, s).ctl[0].port[1]);

        // With security on, only registered hosts log in to the port.
        assertEquals(2, logins(0, 1));
        JNI.KX_ChangeiSCSITargetSecurity(UNIT, s, 0, 1, 1);
        assertEquals(1, targets(0, 1).security);
        assertEquals(1, logins(0, 1));
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_ChangeiSCSITargetSecurity(UNIT, s, 0, 1, 2));

        // Deleting takes the targets' bits from the initiators; the port's first target stays.
        DeleteiSCSITarget del = new DeleteiSCSITarget();
        del.delete_target = new int[255];
        del.delete_target[0] = 1;
        expect(Sim.BUSY, () -> JNI.KX_DeleteiSCSITarget(UNIT, s, 0, 1, del));
        del.delete_target[0] = 0;
        del.delete_target[7] = 1;
        JNI.KX_DeleteiSCSITarget(UNIT, s, 0, 1, del);
        assertEquals(0, targets(0, 1).target[7].target_valid);
        assertEquals(0x03, JNI.KX_GetiSCSIInitiatorInformationAll(UNIT, s).ctl[0].port[1]
                .initiator[4].target_bitmap[0]);
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_DeleteiSCSITarget(UNIT, s, 0, 1, del));

        JNI.KX_InitiSCSITarget(UNIT, s, 0, 1);
        KXiSCSITargetPortInfo init = targets(0, 1);
        assertEquals(1, init.target_count);
        assertEquals(0, init.security);
        assertSameFields(before.target[0], init.target[0]);
    }

    /** The simulated hosts logged in to a port. */
    private static int logins(int ctl, int port) throws Exception {
        KXiSCSILoginInitiatorInformationAll l = JNI.KX_GetiSCSILoginInitiatorInformationAll(UNIT, s);
        return l.ctl[ctl].port[port].initiator_count;
    }

    // ---- CHAP users

    @Test
    public void chapUsersReadBackWithoutTheirSecrets() throws Exception {
        JNI.KX_CreateiSCSITarget(UNIT, s, 1, 0, 3, target("db", 1, "array-c1p0", "Target-Side-Secret"));
        KXiSCSICHAPUserPortInfo p = chap(1, 0);
        assertEquals(512, p.user_max_count);
        assertEquals(0, p.user_count);
        p.user[0] = user("iqn.1998-01.com.vmware:sim-esx-03", "Esx-Host-Secret-3", 0, 3);
        p.user[9] = user("backup-host", "Backup-Secret-999");
        p.user[9].ctrl_flag = 1;
        JNI.KX_SetiSCSICHAPUserInformation(UNIT, s, 1, 0, p);

        KXiSCSICHAPUserPortInfo back = chap(1, 0);
        assertEquals(2, back.user_count);
        assertEquals("", back.user[0].secret);
        assertEquals("", back.user[9].secret);
        p.user[0].secret = "";
        p.user[9].secret = "";
        assertSameFields(p.user[0], back.user[0]);
        assertSameFields(p.user[9], back.user[9]);
        assertFalse("a user's secret as given in the database", storedPlain("Esx-Host-Secret-3"));
        assertFalse(storedPlain("Backup-Secret-999"));

        // Read back and set again: the empty secrets keep the ones kept.
        JNI.KX_SetiSCSICHAPUserInformation(UNIT, s, 1, 0, back);
        assertSameFields(back, chap(1, 0));

        KXiSCSICHAPUserPortInfo bad = chap(1, 0);
        bad.user[1] = user("new-user", "");  // a new user needs a secret
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetiSCSICHAPUserInformation(UNIT, s, 1, 0, bad));
        bad.user[1] = user("new-user", "Target-Side-Secret");  // one secret for both directions
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetiSCSICHAPUserInformation(UNIT, s, 1, 0, bad));
        bad.user[1] = user("backup-host", "Fresh-Secret-0001");  // a name twice
        expect(Sim.EXISTS, () -> JNI.KX_SetiSCSICHAPUserInformation(UNIT, s, 1, 0, bad));
        bad.user[1] = user("new-user", "Fresh-Secret-0001", 5);  // target 5 is not made
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_SetiSCSICHAPUserInformation(UNIT, s, 1, 0, bad));
        assertSameFields(back, chap(1, 0));

        // A storage administrator has the hosts right but not the security right.
        Sim.createAccount(s, "storeman", "storeman-pw", Sim.role(s, "StorageAdmin"));
        KXSessionInfo st = Sim.login("storeman", "storeman-pw");
        try {
            KXiSCSICHAPUserPortInfo mine = chap(1, 0);
            mine.user[2] = user("sneaky", "Sneaky-Secret-01");
            expect(Sim.PERMISSION, () -> JNI.KX_SetiSCSICHAPUserInformation(UNIT, st, 1, 0, mine));
            expect(Sim.PERMISSION, () -> JNI.KX_CreateiSCSITarget(UNIT, st, 1, 0, -1,
                    target("mutual", 1, "array-y", "Another-Secret-01")));
            JNI.KX_CreateiSCSITarget(UNIT, st, 1, 0, -1, target("plain", 0, "", ""));
        } finally {
            Sim.logout(st);
        }
        assertSameFields(back, chap(1, 0));
    }

    @Test
    public void chapUserFileImportedAndAMalformedOneRefusedWhole() throws Exception {
        JNI.KX_CreateiSCSITarget(UNIT, s, 0, 2, 5, target("five", 0, "", ""));
        Path file = Sim.dir().resolve("chap-users.txt");
        Files.write(file, String.join("\n",
                "pernix-sim chap-users 1",
                "# hosts of the lab",
                "user ctl=0 port=2 name=iqn.1994-05.com.redhat:sim-linux-02 secret=Secret-Of-Linux-02 targets=0,5",
                "",
                "user targets=none secret=Another-Secret-9 name=backup-host port=3 ctl=1",
                "end", "").getBytes(StandardCharsets.US_ASCII));
        JNI.KX_iSCSICHAPUserImport(UNIT, s, file.toString());
        KXiSCSICHAPUserPortInfo p = chap(0, 2);
        assertEquals(1, p.user_count);
        assertSameFields(user("iqn.1994-05.com.redhat:sim-linux-02", "", 0, 5), p.user[0]);
        assertSameFields(user("backup-host", ""), chap(1, 3).user[0]);
        assertFalse(storedPlain("Secret-Of-Linux-02"));
        assertTrue("the file is left as it was", Files.exists(file));

        var before = JNI.KX_GetiSCSICHAPUserInformationAll(UNIT, s);
        String good = "user ctl=0 port=2 name=added-host secret=Added-Secret-77 targets=0\n";
        String[][] malformed = {
            {"no-end", "pernix-sim chap-users 1\n" + good},
            {"header", "pernix-sim chap-users 2\n" + good + "end\n"},
            {"after-end", "pernix-sim chap-users 1\n" + good + "end\n" + good},
            {"missing-field", "pernix-sim chap-users 1\n" + good
                    + "user ctl=0 port=2 name=x secret=Missing-Targets-1\nend\n"},
            {"repeated-field", "pernix-sim chap-users 1\n" + good
                    + "user ctl=0 ctl=1 port=2 name=y secret=Repeated-Ctl-01 targets=none\nend\n"},
            {"port-range", "pernix-sim chap-users 1\n" + good
                    + "user ctl=0 port=4 name=z secret=Port-Four-Secret targets=none\nend\n"},
            {"short-secret", "pernix-sim chap-users 1\n" + good
                    + "user ctl=0 port=1 name=w secret=short targets=none\nend\n"},
            {"missing-target", "pernix-sim chap-users 1\n" + good
                    + "user ctl=0 port=2 name=v secret=Missing-Target-1 targets=6\nend\n"},
            {"twice", "pernix-sim chap-users 1\n" + good + good + "end\n"},
            {"not-a-user", "pernix-sim chap-users 1\n" + good + "group ctl=0\nend\n"},
        };
        for (String[] m : malformed) {
            Path bad = Sim.dir().resolve(m[0] + ".txt");
            Files.write(bad, m[1].getBytes(StandardCharsets.US_ASCII));
            assertEquals(m[0], BAD_FILE, Sim.codeOf(() -> JNI.KX_iSCSICHAPUserImport(UNIT, s, bad.toString())));
        }
        expect(FILE_ERROR, () -> JNI.KX_iSCSICHAPUserImport(UNIT, s, Sim.dir().resolve("none.txt").toString()));
        expect(FILE_ERROR, () -> JNI.KX_iSCSICHAPUserImport(UNIT, s, Sim.dir().toString()));
        assertSameFields(before, JNI.KX_GetiSCSICHAPUserInformationAll(UNIT, s));

        // Imported again: the same-named user keeps its slot, a new one takes the next.
        Files.write(file, ("pernix-sim chap-users 1\n"
                + "user ctl=0 port=2 name=iqn.1994-05.com.redhat:sim-linux-02 secret=Replaced-Secret-2 targets=5\n"
                + good + "end\n").getBytes(StandardCharsets.US_ASCII));
        JNI.KX_iSCSICHAPUserImport(UNIT, s, file.toString());
        p = chap(0, 2);
        assertEquals(2, p.user_count);
        assertSameFields(user("iqn.1994-05.com.redhat:sim-linux-02", "", 5), p.user[0]);
        assertSameFields(user("added-host", "", 0), p.user[1]);
    }
}
