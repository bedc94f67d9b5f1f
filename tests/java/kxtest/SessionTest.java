package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUserInfo;
import org.junit.Test;

/** Unit login, logout, login state and session keep-alive. */
public class SessionTest extends BridgeTest {
    static KXSessionInfo session(int seed) {
        KXSessionInfo s = new KXSessionInfo();
        for (int i = 0; i < 32; i++) s.session_id[i] = (byte) (seed + i);
        return s;
    }

    static KXUserInfo user(String name, String passwd) {
        KXUserInfo u = new KXUserInfo();
        u.user = name;
        u.passwd = passwd;
        return u;
    }

    private static byte[] loginAnswer(String first, String second) {
        return Rec.of(36).str(0, first).str(17, second).bytes();
    }

    // ---- KX_LoginKXUnit

    @Test
    public void loginHandsNameModeAndCredentialsInTheirBuffers() {
        FakePernix.willWrite("KX_LoginKXUnit", 3, loginAnswer("operator", "rev2"));
        String[] names = jni.KX_LoginKXUnit("array-7", 3, user("ABCDEFGHIJKLMNOPQRST", "secret"));
        assertArrayEquals(new String[] {"operator", "rev2"}, names);

        assertCString("array-7", 1024, FakePernix.arg("KX_LoginKXUnit", 0, 0));
        assertEquals(3, FakePernix.intArg("KX_LoginKXUnit", 0, 1));
        Rec cred = Rec.wrap(FakePernix.arg("KX_LoginKXUnit", 0, 2));
        assertEquals(34, cred.size());
        assertArrayEquals(cstr("ABCDEFGHIJKLMNOP", 17), cred.slice(0, 17)); // 16 bytes and a NUL
        assertArrayEquals(cstr("secret", 17), cred.slice(17, 17));
        assertTrue("the answer record starts zeroed", Rec.wrap(FakePernix.arg("KX_LoginKXUnit", 0, 3)).zero(0, 36));

        jni.KX_LoginKXUnit(repeat('u', 1500), 0, user("a", "b"));
        assertCString(repeat('u', 1023), 1024, FakePernix.arg("KX_LoginKXUnit", 1, 0));
    }

    @Test
    public void loginAnswersTheTwoNamesOrNull() {
        byte[] full = new byte[36];
        java.util.Arrays.fill(full, 0, 34, (byte) 'x');
        Object[][] cases = {
            // library result, answer record, names returned (null: none)
            {0, loginAnswer("", "second"), null},                    // no first name
            {0, full, new String[] {repeat('x', 17), repeat('x', 17)}},  // filled to the last byte: cut there
            {256, loginAnswer("x", "y"), null},                      // failed quietly: the answer is ignored
        };
        for (Object[] c : cases) {
            FakePernix.reset();
            FakePernix.willReturn("KX_LoginKXUnit", (Integer) c[0]);
            FakePernix.willWrite("KX_LoginKXUnit", 3, (byte[]) c[1]);
            assertArrayEquals((String[]) c[2], jni.KX_LoginKXUnit("u", 0, user("a", "b")));
        }
    }

    // ---- logout, reset, check

    @Test
    public void checkLoginAnswersTheIntTheLibraryStores() {
        FakePernix.willWriteInt("KX_CheckLogin", 2, 77);
        assertEquals(77, jni.KX_CheckLogin("unit-c", 3));
    }

    // ---- KX_KeepSession

    @Test
    public void keepSessionWithAShortTokenStillCallsTheLibrary() {
        KXSessionInfo shortOne = new KXSessionInfo();
        shortOne.session_id = new byte[10];
        Throwable t = thrown(() -> jni.KX_KeepSession("u", shortOne));
        assertEquals(ArrayIndexOutOfBoundsException.class, t.getClass());
        assertArrayEquals(new byte[32], FakePernix.arg("KX_KeepSession", 0, 1));

        FakePernix.willReturn("KX_KeepSession", 12);
        assertEquals(12, code(() -> jni.KX_KeepSession("u", shortOne)));
    }

}
