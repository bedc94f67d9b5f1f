package kxtest;

import static org.junit.Assert.*;

import orvane.str.diskarray.*;
import org.junit.Test;

public class AccountTest extends BridgeTest {
    static final String UNIT = "array-07-" + repeat('u', 80); // cut to 64 bytes in its 65-byte buffer
    static final KXSessionInfo S = SessionTest.session(5);
    static final byte[] TOKEN = SessionTest.session(0xC0).session_id;

    static KXAccountLogin login(String user, String passwd) {
        KXAccountLogin l = new KXAccountLogin();
        l.user_id = user; l.passwd = passwd; l.log_option = 3; l.log_string = "console";
        return l;
    }

    static KXAccountLogout logout(int option) {
        KXAccountLogout l = new KXAccountLogout();
        l.log_option = option;
        return l;
    }

    @Test
    public void loginUseTheSessionAndLogOut() throws Exception {
        FakePernix.willWrite("KX_LoginKXAccount", 2, TOKEN);
        FakePernix.willWrite("KX_GetAccountOption", 2, Rec.of(12).i32(0, 8).i32(4, 1800).i32(8, -60).bytes());

        KXSessionInfo s = jni.KX_LoginKXAccount(UNIT, login("admin", repeat('p', 300)));
        assertArrayEquals(TOKEN, s.session_id);
        // credentials before the session record the library fills
        assertArrayEquals(Rec.of(648).put(0, cstr("admin", 257)).put(257, cstr(repeat('p', 256), 257))
                .i32(516, 3).put(520, cstr("console", 128)).bytes(), FakePernix.arg("KX_LoginKXAccount", 0, 1));
        assertTrue(Rec.wrap(FakePernix.arg("KX_LoginKXAccount", 0, 2)).zero(0, 32));

        AccountOption opt = jni.KX_GetAccountOption(UNIT, s);
        assertArrayEquals(new int[] {8, 1800, -60}, new int[] {opt.option_info.password_min_length,
            opt.option_info.session_timeout, opt.additional_info.keep_alive_time});

        jni.KX_LogoutKXAccount(UNIT, s, logout(9));
        assertArrayEquals(Rec.of(4).i32(0, 9).bytes(), FakePernix.arg("KX_LogoutKXAccount", 0, 2));
        assertArrayEquals(new String[] {"KX_LoginKXAccount", "KX_GetAccountOption", "KX_LogoutKXAccount"},
                FakePernix.log());
    }

    /** Each setter hands unit, session and its record, strings cut to 256 bytes. */
    @Test
    public void setterRecordsFollowTheSession() throws Throwable {
        ForcedLogoutInfo f = new ForcedLogoutInfo();
        f.user_id = repeat('f', 400);
        KXAccountDelete d = new KXAccountDelete();
        d.user_id = "operator";
        KXAccountBaseInfo b = new KXAccountBaseInfo();
        b.user_id = "newuser"; b.set_passwd = 1; b.passwd = "secret"; b.account_type = 2; b.role = -3;
        b.account_enable = 0x01020304;
        OwnUserPassword pw = new OwnUserPassword();
        pw.user_id = "me"; pw.old_passwd = "old"; pw.new_passwd = repeat('n', 257);
        byte[] base = Rec.of(536).put(0, cstr("newuser", 257)).i32(260, 1).put(264, cstr("secret", 257))
                .i32(524, 2).i32(528, -3).i32(532, 0x01020304).bytes();

        Object[][] cases = {
            {"KX_LogoutKXAccountAlertCheck", (Body) () -> jni.KX_LogoutKXAccountAlertCheck(UNIT, S, logout(-1)),
                Rec.of(4).i32(0, -1).bytes()},
            {"KX_ForcedLogoutKXAccount", (Body) () -> jni.KX_ForcedLogoutKXAccount(UNIT, S, f),
                cstr(repeat('f', 256), 257)},
            {"KX_DeleteAccount", (Body) () -> jni.KX_DeleteAccount(UNIT, S, d), cstr("operator", 257)},
            {"KX_CreateAccount", (Body) () -> jni.KX_CreateAccount(UNIT, S, b), base},
            {"KX_ChangeAccount", (Body) () -> jni.KX_ChangeAccount(UNIT, S, b), base},
            {"KX_ChangeOwnUserPassword", (Body) () -> jni.KX_ChangeOwnUserPassword(UNIT, S, pw),
                Rec.of(771).put(0, cstr("me", 257)).put(257, cstr("old", 257))
                        .put(514, cstr(repeat('n', 256), 257)).bytes()},
        };
        for (Object[] c : cases) {
            String fn = (String) c[0];
            ((Body) c[1]).run();
            assertArrayEquals(fn, (byte[]) c[2], FakePernix.arg(fn, 0, 2));
        }
    }

    @Test
    public void accountListAlwaysHas21Accounts() {
        int o = 4 + 2 * 544; // the third account
        FakePernix.willWrite("KX_GetAccountInformation", 2, Rec.of(11428).i32(0, 3).str(o, "user2").i32(o + 260, 2)
                .str(o + 264, "pw2").i32(o + 524, 12).i32(o + 528, 22).i32(o + 532, 32).i32(o + 536, 42)
                .i32(o + 540, -52).str(4 + 20 * 544, repeat('z', 256)).bytes());

        KXAccountInfoList list = jni.KX_GetAccountInformation(UNIT, S);
        assertEquals(3, list.regist_account_count);
        assertEquals(21, list.account_info.length);
        KXAccountInfo a = list.account_info[2];
        KXAccountBaseInfo b = a.account_base_info;
        assertArrayEquals(new Object[] {"user2", 2, "pw2", 12, 22, 32, 42, -52}, new Object[] {b.user_id,
            b.set_passwd, b.passwd, b.account_type, b.role, b.account_enable, a.number_session, a.modify_session});
        assertEquals(repeat('z', 256), list.account_info[20].account_base_info.user_id);
    }

    @Test
    public void permissionsAndRoles() {
        Rec p = Rec.of(76).i32(36, 6);
        for (int i = 0; i < 9; i++) p.i32(4 * i, i + 1).i32(40 + 4 * i, -(i + 1));
        FakePernix.willWrite("KX_GetOwnUserPermission", 2, p.bytes());
        OwnUserPermission perm = jni.KX_GetOwnUserPermission(UNIT, S);
        assertArrayEquals(new int[] {1, 2, 3, 4, 5, 6, 7, 8, 9}, perm.operation_auth);
        assertEquals(6, perm.role);
        assertArrayEquals(new int[] {-1, -2, -3, -4, -5, -6, -7, -8, -9}, perm.original_operation_auth);

        // roles every 257 bytes from offset 4
        Rec r = Rec.of(8228).i32(0, 3).str(4, "Storage Admin").str(4 + 257, "Audit").str(4 + 31 * 257, repeat('r', 256));
        FakePernix.willWrite("KX_GetKXAccountRoleInformation", 2, r.bytes());
        KXAccountRoleInformation roles = jni.KX_GetKXAccountRoleInformation(UNIT, S);
        assertEquals(3, roles.role_valid_index);
        assertEquals(32, roles.role_info.length);
        assertArrayEquals(new String[] {"Storage Admin", "Audit", "", repeat('r', 256)}, new String[] {
            roles.role_info[0].role_name, roles.role_info[1].role_name, roles.role_info[2].role_name,
            roles.role_info[31].role_name});
    }

    @Test
    public void alertCheckLoginAndCheck() {
        FakePernix.willWrite("KX_LoginKXAccountAlertCheck", 2, TOKEN);
        assertArrayEquals(TOKEN, jni.KX_LoginKXAccountAlertCheck(UNIT, -42).session_id);
        assertEquals(-42, FakePernix.intArg("KX_LoginKXAccountAlertCheck", 0, 1));

        FakePernix.willWriteInt("KX_AlertCheck", 3, 77);
        assertEquals(77, jni.KX_AlertCheck(UNIT, S, 5));
        assertEquals(5, FakePernix.intArg("KX_AlertCheck", 0, 2));
    }

    @Test
    public void alertCheckUserNeedsNoUnitOrSession() {
        AlertCheckUser u = new AlertCheckUser();
        u.user_id = "watcher"; u.passwd = repeat('w', 270); u.account_enable = -2;
        jni.KX_SetAlertCheckUser(u);
        assertArrayEquals(Rec.of(520).put(0, cstr("watcher", 257)).put(257, cstr(repeat('w', 256), 257))
                .i32(516, -2).bytes(), FakePernix.arg("KX_SetAlertCheckUser", 0, 0));

        FakePernix.willWrite("KX_GetAlertCheckUser", 0, Rec.of(520).str(0, "stored").str(257, "pass").i32(516, 1).bytes());
        AlertCheckUser got = jni.KX_GetAlertCheckUser();
        assertArrayEquals(new Object[] {"stored", "pass", 1}, new Object[] {got.user_id, got.passwd, got.account_enable});
    }

    @Test
    public void loginUserNames() {
        String path = "/var/lib/array/" + repeat('d', 1100);
        FakePernix.willWrite("KX_GetLoginUser", 2, Rec.of(32).str(0, repeat('a', 17)).str(17, repeat('b', 15)).bytes());
        assertArrayEquals(new String[] {repeat('a', 17), repeat('b', 15)}, jni.KX_GetLoginUser(path, 4));
        assertArrayEquals(cstr(path, 1024), FakePernix.arg("KX_GetLoginUser", 0, 0));
        assertEquals(4, FakePernix.intArg("KX_GetLoginUser", 0, 1));

        // no first name: nothing to return, and nothing reported
        FakePernix.willWrite("KX_GetLoginUser", 2, Rec.of(32).str(17, "second").bytes());
        assertNull(jni.KX_GetLoginUser(path, 4));
    }
}
