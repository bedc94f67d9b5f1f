package simtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertFalse;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertNull;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;
import static simtest.Sim.expect;

import java.util.Arrays;
import org.junit.Test;
import org.junit.experimental.categories.Category;
import orvane.str.diskarray.AccountOption;
import orvane.str.diskarray.ForcedLogoutInfo;
import orvane.str.diskarray.KXAccountInfo;
import orvane.str.diskarray.KXAccountInfoList;
import orvane.str.diskarray.KXAccountLogin;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUnitParam;
import orvane.str.diskarray.KXUserInfo;

/** Logins, sessions and their end (logout, expiry, forced logout), the unit registry. */
public class SessionTest {
    @Test
    @Category(Smoke.class)
    public void accountLoginGivesASessionOtherCallsAcceptUntilLogout() throws Exception {
        KXSessionInfo a = Sim.admin();
        KXSessionInfo b = Sim.admin();
        assertEquals(32, a.session_id.length);
        assertFalse("two logins share a token", Arrays.equals(a.session_id, b.session_id));
        assertFalse("an all-zero token", Arrays.equals(new byte[32], a.session_id));

        assertEquals(0, JNI.KX_GetOwnUserPermission(UNIT, a).role);
        Sim.logout(a);
        expect(Sim.NOT_LOGGED_IN, () -> JNI.KX_GetOwnUserPermission(UNIT, a));
        expect(Sim.NOT_LOGGED_IN, () -> Sim.logout(a));
        // The other session of the same account lives on.
        JNI.KX_GetOwnUserPermission(UNIT, b);
        Sim.logout(b);
    }

    @Test
    public void refusedLoginsAndForeignTokens() throws Exception {
        expect(Sim.AUTH_FAILED, () -> Sim.login(Sim.ADMIN, Sim.PASSWORD + "x"));
        expect(Sim.AUTH_FAILED, () -> Sim.login("nobody-here", Sim.PASSWORD));
        expect(Sim.UNKNOWN_UNIT, () -> JNI.KX_LoginKXAccount("NO-SUCH-UNIT", login(Sim.ADMIN, Sim.PASSWORD)));

        KXSessionInfo forged = new KXSessionInfo();
        Arrays.fill(forged.session_id, (byte) 0x5a);
        expect(Sim.NOT_LOGGED_IN, () -> JNI.KX_GetRaidGroupInformation(UNIT, forged));

        // A session names the unit it was opened on.
        KXSessionInfo s = Sim.admin();
        JNI.KX_UnitAdd(Child.unit("OTHER"));
        expect(Sim.NOT_LOGGED_IN, () -> JNI.KX_GetRaidGroupInformation("OTHER", s));
        // An account holds at most eight live sessions (the others this
        // class's tests left are ended first).
        ForcedLogoutInfo self = new ForcedLogoutInfo();
        self.user_id = Sim.ADMIN;
        JNI.KX_ForcedLogoutKXAccount(UNIT, s, self);
        KXSessionInfo[] more = new KXSessionInfo[7];
        for (int i = 0; i < more.length; i++) {
            more[i] = Sim.admin();
        }
        expect(12308, Sim::admin);
        Sim.logout(more[0]);
        Sim.logout(Sim.admin());
        for (int i = 1; i < more.length; i++) {
            Sim.logout(more[i]);
        }
        Sim.logout(s);
    }

    @Test
    public void sessionsExpireOnTheSimulatorsClockAndKeepSessionExtendsThem() throws Exception {
        KXSessionInfo idle = Sim.admin();
        KXSessionInfo kept = Sim.admin();
        AccountOption opt = JNI.KX_GetAccountOption(UNIT, kept);
        int timeout = opt.option_info.session_timeout;
        assertEquals("the default session timeout", 1800, timeout);

        Sim.clock(timeout - 100);
        JNI.KX_KeepSession(UNIT, kept);
        JNI.KX_GetOwnUserPermission(UNIT, idle);  // a read does not extend a session
        Sim.clock(200);
        expect(Sim.EXPIRED, () -> JNI.KX_GetOwnUserPermission(UNIT, idle));
        expect(Sim.EXPIRED, () -> JNI.KX_KeepSession(UNIT, idle));
        JNI.KX_GetOwnUserPermission(UNIT, kept);

        Sim.clock(timeout);
        expect(Sim.EXPIRED, () -> JNI.KX_GetOwnUserPermission(UNIT, kept));
        // A fresh login works on the stepped clock.
        Sim.logout(Sim.admin());
    }

    @Test
    public void forcedLogoutEndsEveryOtherSessionOfTheAccount() throws Exception {
        KXSessionInfo admin = Sim.admin();
        Sim.createAccount(admin, "operator", "operator-pw", Sim.role(admin, "StorageAdmin"));
        KXSessionInfo op1 = Sim.login("operator", "operator-pw");
        KXSessionInfo op2 = Sim.login("operator", "operator-pw");
        assertEquals(2, sessionsOf(admin, "operator"));

        ForcedLogoutInfo info = new ForcedLogoutInfo();
        info.user_id = "operator";
        JNI.KX_ForcedLogoutKXAccount(UNIT, admin, info);
        expect(Sim.NOT_LOGGED_IN, () -> JNI.KX_GetOwnUserPermission(UNIT, op1));
        expect(Sim.NOT_LOGGED_IN, () -> JNI.KX_GetOwnUserPermission(UNIT, op2));
        assertEquals(0, sessionsOf(admin, "operator"));

        // Naming yourself keeps the calling session, ends the others.
        KXSessionInfo other = Sim.admin();
        info.user_id = Sim.ADMIN;
        JNI.KX_ForcedLogoutKXAccount(UNIT, admin, info);
        expect(Sim.NOT_LOGGED_IN, () -> JNI.KX_GetOwnUserPermission(UNIT, other));
        JNI.KX_GetOwnUserPermission(UNIT, admin);

        info.user_id = "no-such-account";
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_ForcedLogoutKXAccount(UNIT, admin, info));
        Sim.logout(admin);
    }

    @Test
    public void unitLoginServesTheOlderCallsUntilLogout() throws Exception {
        expect(Sim.NOT_LOGGED_IN, () -> JNI.KX_GetRaidGroups(UNIT));
        KXUserInfo user = new KXUserInfo();
        user.user = Sim.ADMIN;
        user.passwd = Sim.PASSWORD;
        String[] who = JNI.KX_LoginKXUnit(UNIT, 3, user);
        assertArrayEquals(new String[] {Sim.ADMIN, "Administrator"}, who);
        assertEquals(1, JNI.KX_CheckLogin(UNIT, 3));
        assertEquals(0, JNI.KX_CheckLogin(UNIT, 4));
        assertEquals(90, JNI.KX_GetRaidGroups(UNIT).length);

        JNI.KX_LogoutKXUnit(UNIT, 3);
        assertEquals(0, JNI.KX_CheckLogin(UNIT, 3));
        expect(Sim.NOT_LOGGED_IN, () -> JNI.KX_GetRaidGroups(UNIT));
        expect(Sim.NOT_LOGGED_IN, () -> JNI.KX_LogoutKXUnit(UNIT, 3));

        user.passwd = "wrong-one";
        expect(Sim.AUTH_FAILED, () -> JNI.KX_LoginKXUnit(UNIT, 3, user));
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_LoginKXUnit(UNIT, 256, user));
    }

    @Test
    @Category(Smoke.class)
    public void registryEntriesRoundTripAndFollowRenames() throws Exception {
        int units = JNI.KX_GetUnitCount();
        KXUnitParam lab = Child.unit("LAB-2");
        lab.group_name = "second floor";
        lab.connect_type = -1;   // every code is kept as given
        lab.device_type = 200;
        lab.alert = 1;
        JNI.KX_UnitAdd(lab);
        Sim.assertSameFields(lab, JNI.KX_GetUnitParam("LAB-2"));
        expect(Sim.EXISTS, () -> JNI.KX_UnitAdd(lab));
        assertEquals(units + 1, JNI.KX_GetUnitCount());

        // In registration order, the records past the last unit empty.
        KXUnitParam[] table = JNI.KX_GetUnitParamTable(units + 2);
        assertEquals(UNIT, table[0].unit_name);
        Sim.assertSameFields(lab, table[units]);
        assertEquals("", table[units + 1].unit_name);

        // A session opened through the unit follows it when it is renamed.
        KXSessionInfo s = JNI.KX_LoginKXAccount("LAB-2", login(Sim.ADMIN, Sim.PASSWORD));
        KXUnitParam renamed = Child.unit("LAB-3");
        renamed.serial = "93000002";
        JNI.KX_UnitChange("LAB-2", renamed);
        expect(Sim.UNKNOWN_UNIT, () -> JNI.KX_GetUnitParam("LAB-2"));
        Sim.assertSameFields(renamed, JNI.KX_GetUnitParam("LAB-3"));
        assertNotNull(JNI.KX_GetRaidGroupInformation("LAB-3", s));

        JNI.KX_UnitDelete("LAB-3");
        expect(Sim.UNKNOWN_UNIT, () -> JNI.KX_GetUnitParam("LAB-3"));
        expect(Sim.UNKNOWN_UNIT, () -> JNI.KX_GetRaidGroupInformation("LAB-3", s));
        assertEquals(units, JNI.KX_GetUnitCount());

        // A unit whose controllers are not the array's is registered but unreachable.
        KXUnitParam far = Child.unit("FAR");
        far.ctl0 = "198.51.100.1";
        far.ctl1 = "198.51.100.2";
        JNI.KX_UnitAdd(far);
        expect(12306, () -> JNI.KX_LoginKXAccount("FAR", login(Sim.ADMIN, Sim.PASSWORD)));
        expect(12306, () -> JNI.KX_UnitAddByIP(far2()));
    }

    private static KXUnitParam far2() {
        KXUnitParam p = Child.unit("FAR2");
        p.ctl0 = "198.51.100.9";
        p.ctl1 = "";
        return p;
    }

    private static KXAccountLogin login(String user, String password) {
        KXAccountLogin l = new KXAccountLogin();
        l.user_id = user;
        l.passwd = password;
        l.log_string = "";
        return l;
    }

    private static int sessionsOf(KXSessionInfo s, String user) throws Exception {
        KXAccountInfoList list = JNI.KX_GetAccountInformation(UNIT, s);
        for (int i = 0; i < list.regist_account_count; i++) {
            KXAccountInfo a = list.account_info[i];
            if (a.account_base_info.user_id.equals(user)) {
                assertNull("a password read back", emptyToNull(a.account_base_info.passwd));
                return a.number_session;
            }
        }
        throw new AssertionError("no account " + user);
    }

    private static String emptyToNull(String s) {
        return s == null || s.isEmpty() ? null : s;
    }
}
