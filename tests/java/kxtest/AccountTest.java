package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.AccountOption;
import orvane.str.diskarray.AlertCheckUser;
import orvane.str.diskarray.ForcedLogoutInfo;
import orvane.str.diskarray.KXAccountBaseInfo;
import orvane.str.diskarray.KXAccountDelete;
import orvane.str.diskarray.KXAccountInfo;
import orvane.str.diskarray.KXAccountInfoList;
import orvane.str.diskarray.KXAccountLogin;
import orvane.str.diskarray.KXAccountLogout;
import orvane.str.diskarray.KXAccountRoleInformation;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.OwnUserPassword;
import orvane.str.diskarray.OwnUserPermission;
import org.junit.Test;

public class AccountTest extends BridgeTest {
    static final String UNIT = "array-07";

    static byte[] token() {
        byte[] t = new byte[32];
        for (int i = 0; i < 32; i++) t[i] = (byte) (0xC0 + i);
        return t;
    }

    static KXAccountLogin login(String user, String passwd, int option, String log) {
        KXAccountLogin l = new KXAccountLogin();
        l.user_id = user;
        l.passwd = passwd;
        l.log_option = option;
        l.log_string = log;
        return l;
    }

    static KXAccountLogout logout(int option) {
        KXAccountLogout l = new KXAccountLogout();
        l.log_option = option;
        return l;
    }

    static KXAccountBaseInfo base(String user, String passwd) {
        KXAccountBaseInfo b = new KXAccountBaseInfo();
        b.user_id = user;
        b.set_passwd = 1;
        b.passwd = passwd;
        b.account_type = 2;
        b.role = -3;
        b.account_enable = 0x01020304;
        return b;
    }

    @Test
    public void loginUseTheSessionAndLogOut() throws Exception {
        FakePernix.willWrite("KX_LoginKXAccount", 2, token());
        FakePernix.willWrite("KX_GetAccountOption", 2, Rec.of(12).i32(0, 8).i32(4, 1800).i32(8, -60).bytes());

        KXSessionInfo s = jni.KX_LoginKXAccount(UNIT, login("admin", repeat('p', 300), 3, "console"));
        assertArrayEquals(token(), s.session_id);
        // credentials before the session record the library fills
        assertCString(UNIT, 65, FakePernix.arg("KX_LoginKXAccount", 0, 0));
        Rec r = Rec.wrap(FakePernix.arg("KX_LoginKXAccount", 0, 1));
        assertEquals(648, r.size());
        assertArrayEquals(cstr("admin", 257), r.slice(0, 257));
        assertArrayEquals(cstr(repeat('p', 256), 257), r.slice(257, 257));
        assertTrue(r.zero(514, 2));
        assertEquals(3, r.i32(516));
        assertArrayEquals(cstr("console", 128), r.slice(520, 128));
        assertTrue(Rec.wrap(FakePernix.arg("KX_LoginKXAccount", 0, 2)).zero(0, 32));

        AccountOption opt = jni.KX_GetAccountOption(UNIT, s);
        assertArrayEquals(token(), FakePernix.arg("KX_GetAccountOption", 0, 1));
        assertEquals(8, opt.option_info.password_min_length);
        assertEquals(1800, opt.option_info.session_timeout);
        assertEquals(-60, opt.additional_info.keep_alive_time);

        jni.KX_LogoutKXAccount(UNIT, s, logout(9));
        assertArrayEquals(token(), FakePernix.arg("KX_LogoutKXAccount", 0, 1));
        assertArrayEquals(Rec.of(4).i32(0, 9).bytes(), FakePernix.arg("KX_LogoutKXAccount", 0, 2));
        assertArrayEquals(new String[] {"KX_LoginKXAccount", "KX_GetAccountOption", "KX_LogoutKXAccount"},
                FakePernix.log());
    }

    @Test
    public void loginFailures() throws Throwable {
        assertEquals(258, code(() -> jni.KX_LoginKXAccount(null, login("a", "b", 0, ""))));
        assertEquals(0, FakePernix.calls("KX_LoginKXAccount"));

        // a null login object sends the unfilled record
        assertNotNull(jni.KX_LoginKXAccount(UNIT, null));
        assertTrue(Rec.wrap(FakePernix.arg("KX_LoginKXAccount", 0, 1)).zero(0, 648));

        FakePernix.willReturn("KX_LoginKXAccount", 0x0C01);
        assertEquals(0x0C01, code(() -> jni.KX_LoginKXAccount(UNIT, login("a", "b", 0, ""))));
        FakePernix.willReturn("KX_LoginKXAccount", 256);
        assertNull(jni.KX_LoginKXAccount(UNIT, login("a", "b", 0, "")));

        assertEachAllocationFailureReported(() -> jni.KX_LoginKXAccount(UNIT, login("a", "b", 0, "")));
    }

    @Test
    public void alertCheckLoginTakesNoCredentials() throws Throwable {
        FakePernix.willWrite("KX_LoginKXAccountAlertCheck", 2, token());
        KXSessionInfo s = jni.KX_LoginKXAccountAlertCheck(UNIT, -42);
        assertArrayEquals(token(), s.session_id);
        assertEquals(-42, FakePernix.intArg("KX_LoginKXAccountAlertCheck", 0, 1));

        jni.KX_LogoutKXAccountAlertCheck(UNIT, s, logout(-1));
        assertArrayEquals(token(), FakePernix.arg("KX_LogoutKXAccountAlertCheck", 0, 1));
        assertEquals(-1, Rec.wrap(FakePernix.arg("KX_LogoutKXAccountAlertCheck", 0, 2)).i32(0));

        FakePernix.willReturn("KX_LoginKXAccountAlertCheck", 77);
        assertEquals(77, code(() -> jni.KX_LoginKXAccountAlertCheck(UNIT, 0)));
        assertEachAllocationFailureReported(() -> jni.KX_LoginKXAccountAlertCheck(UNIT, 0));
    }

    @Test
    public void accountNamesTravelIn257Bytes() throws Throwable {
        KXSessionInfo s = SessionTest.session(5);
        ForcedLogoutInfo f = new ForcedLogoutInfo();
        f.user_id = repeat('f', 400);
        jni.KX_ForcedLogoutKXAccount(UNIT, s, f);
        assertArrayEquals(s.session_id, FakePernix.arg("KX_ForcedLogoutKXAccount", 0, 1));
        assertArrayEquals(cstr(repeat('f', 256), 257), FakePernix.arg("KX_ForcedLogoutKXAccount", 0, 2));

        KXAccountDelete d = new KXAccountDelete();
        d.user_id = "operator";
        jni.KX_DeleteAccount(UNIT, s, d);
        assertArrayEquals(cstr("operator", 257), FakePernix.arg("KX_DeleteAccount", 0, 2));

        OwnUserPassword pw = new OwnUserPassword();
        pw.user_id = "me";
        pw.old_passwd = "old";
        pw.new_passwd = repeat('n', 257);
        jni.KX_ChangeOwnUserPassword(UNIT, s, pw);
        Rec r = Rec.wrap(FakePernix.arg("KX_ChangeOwnUserPassword", 0, 2));
        assertEquals(771, r.size());
        assertArrayEquals(cstr("me", 257), r.slice(0, 257));
        assertArrayEquals(cstr("old", 257), r.slice(257, 257));
        assertArrayEquals(cstr(repeat('n', 256), 257), r.slice(514, 257));

        assertEquals(258, code(() -> jni.KX_DeleteAccount(null, s, d)));
        FakePernix.willReturn("KX_DeleteAccount", -7);
        assertEquals(-7, code(() -> jni.KX_DeleteAccount(UNIT, s, d)));
        assertEachAllocationFailureReported(() -> jni.KX_ChangeOwnUserPassword(UNIT, s, pw));
    }

    @Test
    public void createAndChangeAccountLayout() throws Throwable {
        KXSessionInfo s = SessionTest.session(1);
        jni.KX_CreateAccount(UNIT, s, base("newuser", "secret"));
        jni.KX_ChangeAccount(UNIT, s, base("other", "pw2"));
        for (String fn : new String[] {"KX_CreateAccount", "KX_ChangeAccount"}) {
            Rec r = Rec.wrap(FakePernix.arg(fn, 0, 2));
            assertEquals(536, r.size());
            assertEquals(1, r.i32(260));
            assertTrue(r.zero(257, 3));
            assertTrue(r.zero(521, 3));
            assertEquals(2, r.i32(524));
            assertEquals(-3, r.i32(528));
            assertEquals(0x01020304, r.i32(532));
        }
        Rec c = Rec.wrap(FakePernix.arg("KX_CreateAccount", 0, 2));
        assertArrayEquals(cstr("newuser", 257), c.slice(0, 257));
        assertArrayEquals(cstr("secret", 257), c.slice(264, 257));
        assertEquals("pw2", Rec.wrap(FakePernix.arg("KX_ChangeAccount", 0, 2)).str(264, 257));
        assertEachAllocationFailureReported(() -> jni.KX_ChangeAccount(UNIT, s, base("x", "y")));
    }

    @Test
    public void accountListAlwaysHas21Accounts() throws Throwable {
        Rec r = Rec.of(11428).i32(0, 3);
        for (int k = 0; k < 3; k++) {
            int o = 4 + k * 544;
            r.str(o, "user" + k).i32(o + 260, k).str(o + 264, "pw" + k)
                    .i32(o + 524, 10 + k).i32(o + 528, 20 + k).i32(o + 532, 30 + k)
                    .i32(o + 536, 40 + k).i32(o + 540, -50 - k);
        }
        r.str(4 + 20 * 544, repeat('z', 256));
        FakePernix.willWrite("KX_GetAccountInformation", 2, r.bytes());

        KXAccountInfoList list = jni.KX_GetAccountInformation(UNIT, SessionTest.session(2));
        assertEquals(3, list.regist_account_count);
        assertEquals(21, list.account_info.length);
        KXAccountInfo a2 = list.account_info[2];
        assertEquals("user2", a2.account_base_info.user_id);
        assertEquals(2, a2.account_base_info.set_passwd);
        assertEquals("pw2", a2.account_base_info.passwd);
        assertEquals(12, a2.account_base_info.account_type);
        assertEquals(22, a2.account_base_info.role);
        assertEquals(32, a2.account_base_info.account_enable);
        assertEquals(42, a2.number_session);
        assertEquals(-52, a2.modify_session);
        assertEquals("", list.account_info[3].account_base_info.user_id);
        assertEquals(repeat('z', 256), list.account_info[20].account_base_info.user_id);

        FakePernix.willReturn("KX_GetAccountInformation", 256);
        assertNull(jni.KX_GetAccountInformation(UNIT, SessionTest.session(2)));
        assertEachAllocationFailureReported(() -> jni.KX_GetAccountInformation(UNIT, SessionTest.session(2)));
    }

    @Test
    public void permissionsAndRoles() throws Throwable {
        Rec p = Rec.of(76);
        for (int i = 0; i < 9; i++) p.i32(4 * i, i + 1).i32(40 + 4 * i, -(i + 1));
        p.i32(36, 6);
        FakePernix.willWrite("KX_GetOwnUserPermission", 2, p.bytes());
        OwnUserPermission perm = jni.KX_GetOwnUserPermission(UNIT, SessionTest.session(3));
        assertArrayEquals(new int[] {1, 2, 3, 4, 5, 6, 7, 8, 9}, perm.operation_auth);
        assertEquals(6, perm.role);
        assertArrayEquals(new int[] {-1, -2, -3, -4, -5, -6, -7, -8, -9}, perm.original_operation_auth);

        // roles every 257 bytes from offset 4
        Rec r = Rec.of(8228).i32(0, 3).str(4, "Storage Admin").str(4 + 257, "Audit");
        r.str(4 + 31 * 257, repeat('r', 256));
        FakePernix.willWrite("KX_GetKXAccountRoleInformation", 2, r.bytes());
        KXAccountRoleInformation roles = jni.KX_GetKXAccountRoleInformation(UNIT, SessionTest.session(3));
        assertEquals(3, roles.role_valid_index);
        assertEquals(32, roles.role_info.length);
        assertEquals("Storage Admin", roles.role_info[0].role_name);
        assertEquals("Audit", roles.role_info[1].role_name);
        assertEquals("", roles.role_info[2].role_name);
        assertEquals(repeat('r', 256), roles.role_info[31].role_name);

        FakePernix.willReturn("KX_GetKXAccountRoleInformation", 0x2222);
        assertEquals(0x2222, code(() -> jni.KX_GetKXAccountRoleInformation(UNIT, SessionTest.session(3))));
    }

    @Test
    public void alertCheckAnswersTheLibrarysInt() throws Throwable {
        FakePernix.willWriteInt("KX_AlertCheck", 3, 77);
        assertEquals(77, jni.KX_AlertCheck(UNIT, SessionTest.session(4), 5));
        assertEquals(5, FakePernix.intArg("KX_AlertCheck", 0, 2));
        assertArrayEquals(SessionTest.session(4).session_id, FakePernix.arg("KX_AlertCheck", 0, 1));
        FakePernix.willReturn("KX_AlertCheck", 256);
        assertEquals(0, jni.KX_AlertCheck(UNIT, SessionTest.session(4), 5));
        FakePernix.willReturn("KX_AlertCheck", 9);
        assertEquals(9, code(() -> jni.KX_AlertCheck(UNIT, SessionTest.session(4), 5)));
    }

    @Test
    public void alertCheckUserNeedsNoUnitOrSession() throws Throwable {
        AlertCheckUser u = new AlertCheckUser();
        u.user_id = "watcher";
        u.passwd = repeat('w', 270);
        u.account_enable = -2;
        jni.KX_SetAlertCheckUser(u);
        Rec r = Rec.wrap(FakePernix.arg("KX_SetAlertCheckUser", 0, 0));
        assertEquals(520, r.size());
        assertArrayEquals(cstr("watcher", 257), r.slice(0, 257));
        assertArrayEquals(cstr(repeat('w', 256), 257), r.slice(257, 257));
        assertTrue(r.zero(514, 2));
        assertEquals(-2, r.i32(516));
        assertEachAllocationFailureReported(() -> jni.KX_SetAlertCheckUser(u));

        FakePernix.willWrite("KX_GetAlertCheckUser", 0,
                Rec.of(520).str(0, "stored").str(257, "pass").i32(516, 1).bytes());
        AlertCheckUser got = jni.KX_GetAlertCheckUser();
        assertEquals("stored", got.user_id);
        assertEquals("pass", got.passwd);
        assertEquals(1, got.account_enable);
        FakePernix.willReturn("KX_GetAlertCheckUser", 300);
        assertEquals(300, code(() -> jni.KX_GetAlertCheckUser()));
    }

    @Test
    public void loginUserNames() throws Throwable {
        String path = "/var/lib/array/" + repeat('d', 1100);
        FakePernix.willWrite("KX_GetLoginUser", 2, Rec.of(32).str(0, repeat('a', 17)).str(17, repeat('b', 15)).bytes());
        assertArrayEquals(new String[] {repeat('a', 17), repeat('b', 15)}, jni.KX_GetLoginUser(path, 4));
        assertArrayEquals(cstr(path, 1024), FakePernix.arg("KX_GetLoginUser", 0, 0));
        assertEquals(4, FakePernix.intArg("KX_GetLoginUser", 0, 1));

        // no first name: nothing to return, and nothing reported
        FakePernix.willWrite("KX_GetLoginUser", 2, Rec.of(32).str(17, "second").bytes());
        assertNull(jni.KX_GetLoginUser(path, 4));

        assertEquals(258, code(() -> jni.KX_GetLoginUser(null, 4)));
        assertEquals(2, FakePernix.calls("KX_GetLoginUser"));
        FakePernix.willReturn("KX_GetLoginUser", 12);
        assertEquals(12, code(() -> jni.KX_GetLoginUser(path, 4)));
    }
}
