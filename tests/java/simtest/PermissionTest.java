package simtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;
import static simtest.Sim.JNI;
import static simtest.Sim.PERMISSION;
import static simtest.Sim.UNIT;
import static simtest.Sim.expect;

import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import org.junit.AfterClass;
import org.junit.BeforeClass;
import org.junit.Test;
import orvane.str.diskarray.DiskDriveRestoration;
import orvane.str.diskarray.KXAccountDelete;
import orvane.str.diskarray.KXAuditLogInit;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUserInfo;
import orvane.str.diskarray.OwnUserPermission;
import orvane.str.diskarray.RaidGroup;
import orvane.str.diskarray.RaidGroupInformation;

/** Every change checks the right the session's role grants; reads need none. */
public class PermissionTest {
    private static KXSessionInfo admin;
    private static KXSessionInfo monitor;
    private static KXSessionInfo storage;

    @BeforeClass
    public static void accounts() throws Exception {
        admin = Sim.admin();
        Sim.createAccount(admin, "watcher", "watcher-pw", Sim.role(admin, "Monitor"));
        Sim.createAccount(admin, "keeper", "keeper-pw", Sim.role(admin, "StorageAdmin"));
        monitor = Sim.login("watcher", "watcher-pw");
        storage = Sim.login("keeper", "keeper-pw");
    }

    @AfterClass
    public static void logout() throws Exception {
        Sim.logout(admin);
    }

    @Test
    public void aMonitorReadsEverythingAndChangesNothing() throws Exception {
        OwnUserPermission p = JNI.KX_GetOwnUserPermission(UNIT, monitor);
        assertArrayEquals(new int[9], p.operation_auth);
        assertArrayEquals(new int[9], p.original_operation_auth);

        RaidGroupInformation before = JNI.KX_GetRaidGroupInformation(UNIT, monitor);
        expect(PERMISSION, () -> JNI.KX_CreateRaidGroup(UNIT, monitor, Child.automatic(5, 5, 1)));
        expect(PERMISSION, () -> JNI.KX_RaidGroupDelete(UNIT, monitor, 0));
        expect(PERMISSION, () -> JNI.KX_LogicalUnitAdd(UNIT, monitor, Child.lu(100, 0, 2048)));
        expect(PERMISSION, () -> JNI.KX_LogicalUnitDeleteByLUN(UNIT, monitor, 0));
        expect(PERMISSION, () -> JNI.KX_SetDiskDriveRestoration(UNIT, monitor, new DiskDriveRestoration()));
        expect(PERMISSION, () -> Sim.createAccount(monitor, "sneaky", "sneaky-pw", 0));
        KXAuditLogInit init = new KXAuditLogInit();
        init.set_valid = 1;
        expect(PERMISSION, () -> JNI.KX_InitKXAuditLog(UNIT, monitor, init));
        Sim.assertSameFields(before, JNI.KX_GetRaidGroupInformation(UNIT, monitor));
        assertEquals(before.rg_count, JNI.KX_GetRaidGroupInformation(UNIT, admin).rg_count);

        // The older calls act for the unit login, with the same rights.
        KXUserInfo u = new KXUserInfo();
        u.user = "watcher";
        u.passwd = "watcher-pw";
        JNI.KX_LoginKXUnit(UNIT, 0, u);
        try {
            RaidGroup rg = new RaidGroup();
            rg.rgnum = 50;
            rg.level = 5;
            rg.port = 3;
            rg.row = 10;
            rg.width = 5;
            rg.depth = 1;
            expect(PERMISSION, () -> JNI.KX_RaidGroupAdd(UNIT, rg));
            expect(PERMISSION, () -> JNI.KX_LogicalUnitDeleteAll(UNIT));
            assertEquals(90, JNI.KX_GetRaidGroups(UNIT).length);
        } finally {
            JNI.KX_LogoutKXUnit(UNIT, 0);
        }
    }

    @Test
    public void aStorageAdministratorMakesStorageButNoAccounts() throws Exception {
        JNI.KX_CreateRaidGroup(UNIT, storage, Child.automatic(6, 6, 1));
        expect(PERMISSION, () -> Sim.createAccount(storage, "another", "another-pw", 2));
        KXAccountDelete del = new KXAccountDelete();
        del.user_id = "watcher";
        expect(PERMISSION, () -> JNI.KX_DeleteAccount(UNIT, storage, del));
    }

    @Test
    public void refusalsAreInTheAuditLogUnderTheRefusedAccount() throws Exception {
        expect(PERMISSION, () -> JNI.KX_RaidGroupDelete(UNIT, monitor, 1));
        Path csv = Sim.dir().resolve("audit.csv");
        JNI.KX_KXAuditLogExport(UNIT, monitor, csv.toString());  // a read: a monitor may export
        List<String> lines = Files.readAllLines(csv, StandardCharsets.UTF_8);
        assertEquals("id,time,unit,user,function,object,result", lines.get(0));
        String[] last = lines.get(lines.size() - 1).split(",", -1);
        assertEquals(lines.toString(), 7, last.length);
        assertTrue("time " + last[1], last[1].matches("\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ"));
        assertEquals("unit", UNIT, last[2]);
        assertEquals("user", "watcher", last[3]);
        assertEquals("function", "KX_RaidGroupDelete", last[4]);
        assertEquals("result", String.valueOf(PERMISSION), last[6]);
        assertEquals("the object a refused change names", "RAID group 1", last[5]);
        for (String l : lines) {
            assertTrue("a password in the audit log: " + l, !l.contains("watcher-pw") && !l.contains(Sim.PASSWORD));
        }
    }
}
