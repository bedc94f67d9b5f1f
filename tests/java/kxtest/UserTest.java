package kxtest;

import static org.junit.Assert.*;

import orvane.str.diskarray.*;
import org.junit.Test;

/** The file-based user table, the password check and the permission import. */
public class UserTest extends BridgeTest {
    static final String PATH = "/etc/array/users.db";

    static byte[] userRec(String user, String passwd) {
        return Rec.of(34).put(0, cstr(user, 17)).put(17, cstr(passwd, 17)).bytes();
    }

    @Test
    public void userTableCallsTakeAPathAndCutTheCredentials() {
        jni.KX_RegistUser(PATH, 3, SessionTest.user(repeat('u', 20), "pw"));
        assertArrayEquals(userRec(repeat('u', 16), "pw"), FakePernix.arg("KX_RegistUser", 0, 2));

        KXUserInfo u = SessionTest.user("old", "o1");
        jni.KX_ChangeUser(PATH, -1, u, SessionTest.user("new", "n1"));
        assertArrayEquals(userRec("old", "o1"), FakePernix.arg("KX_ChangeUser", 0, 2));
        assertArrayEquals(userRec("new", "n1"), FakePernix.arg("KX_ChangeUser", 0, 3));
        jni.KX_DeleteUser(PATH, 0, SessionTest.user("gone", repeat('x', 30)));
        assertArrayEquals(userRec("gone", repeat('x', 16)), FakePernix.arg("KX_DeleteUser", 0, 2));
        FakePernix.willWrite("KX_GetUserInformation", 2, Rec.of(8).i32(0, 4).i32(4, -9).bytes());
        KXUserRegist reg = jni.KX_GetUserInformation(PATH, 1);
        assertArrayEquals(new int[] {4, -9}, new int[] {reg.num, reg.option});
    }

    @Test
    public void passwordCheckAnswersAndReports() throws Throwable {
        String text = "pässword-" + repeat('q', 2000);
        assertEquals(0, jni.KX_PasswdCheck(text));
        // the whole text, unbounded, in modified UTF-8 with its NUL
        assertArrayEquals(cstr(text, text.getBytes("UTF-8").length + 1), FakePernix.arg("KX_PasswdCheck", 0, 0));

        FakePernix.willReturn("KX_PasswdCheck", -1);
        assertEquals(-1, jni.KX_PasswdCheck("x"));
        FakePernix.willReturn("KX_PasswdCheck", 256);
        assertEquals(256, jni.KX_PasswdCheck("x"));
        FakePernix.willReturn("KX_PasswdCheck", 5);
        assertEquals(5, code(() -> jni.KX_PasswdCheck("x")));

        FakePernix.reset();
        assertEquals(258, code(() -> jni.KX_PasswdCheck(null)));
        assertEquals(0, FakePernix.calls("KX_PasswdCheck"));
    }

    @Test
    public void permissionImportBuildsTheLibrarysCountOfElements() {
        Rec perms = Rec.of(128 * 297).str(0, "2000000000000001").str(17, "port0").str(34, "0x0")
                .u8(41, 0xFF).u8(296, 0x80).str(297, repeat('n', 16));
        FakePernix.willWrite("KX_FibreInfoPermissionImport", 5, perms.bytes());
        FakePernix.willWriteInt("KX_FibreInfoPermissionImport", 4, 2);
        FibreInformationPermission[] got = jni.KX_FibreInfoPermissionImport(repeat('u', 70), PATH, 6, -6);
        assertEquals(2, got.length);
        assertArrayEquals(new String[] {"2000000000000001", "port0", "0x0", repeat('n', 16)},
                new String[] {got[0].node_name, got[0].port_name, got[0].n_port_id, got[1].node_name});
        assertEquals((byte) 0xFF, got[0].lun_security_bitmap[0]);
        assertEquals((byte) 0x80, got[0].lun_security_bitmap[255]);

        // a count of 0 is an empty array
        FakePernix.willWriteInt("KX_FibreInfoPermissionImport", 4, 0);
        assertEquals(0, jni.KX_FibreInfoPermissionImport("u", PATH, 0, 0).length);
    }

    /** A full table of 128 permissions, each named by its index. */
    static Rec permissionTable() {
        Rec perms = Rec.of(128 * 297);
        for (int i = 0; i < 128; i++) perms.str(297 * i, "node" + i).str(297 * i + 17, "port" + i).u8(297 * i + 296, i);
        return perms;
    }

    @Test
    public void permissionImportNeverGrowsPastItsTable() {
        // The library's count is not trusted: at 128 and past it the array
        // holds the whole table, every element built from its own record, and
        // nothing beyond it.
        FakePernix.willWrite("KX_FibreInfoPermissionImport", 5, permissionTable().bytes());
        for (int count : new int[] {127, 128, 129, 319231960, Integer.MAX_VALUE}) {
            FakePernix.willWriteInt("KX_FibreInfoPermissionImport", 4, count);
            FibreInformationPermission[] got = jni.KX_FibreInfoPermissionImport("u", PATH, 0, 0);
            assertEquals(Math.min(count, 128), got.length);
            for (int i = 0; i < got.length; i++) {
                assertEquals("node" + i, got[i].node_name);
                assertEquals("port" + i, got[i].port_name);
                assertEquals((byte) i, got[i].lun_security_bitmap[255]);
            }
        }
        assertEquals("", FakePernix.faults());
    }

    @Test
    public void aNegativePermissionCountIs2817WithTheTableReleased() {
        FakePernix.willWrite("KX_FibreInfoPermissionImport", 5, permissionTable().bytes());
        for (int count : new int[] {-1, Integer.MIN_VALUE}) {
            FakePernix.willWriteInt("KX_FibreInfoPermissionImport", 4, count);
            assertEquals(2817, code(() -> jni.KX_FibreInfoPermissionImport("u", PATH, 0, 0)));
            assertEquals(0, FakePernix.liveBlocks());
        }
        assertEquals(2, FakePernix.calls("KX_FibreInfoPermissionImport"));
        assertEquals(FakePernix.RELEASED, FakePernix.releases("KX_FibreInfoPermissionImport", 1)[5]);
    }
}
