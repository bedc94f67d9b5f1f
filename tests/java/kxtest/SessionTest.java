package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUserInfo;
import org.junit.Test;

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

    @Test
    public void keepSessionHandsNameAndTokenToTheLibrary() {
        jni.KX_KeepSession("unit-1", session(7));
        assertEquals(1, FakePernix.calls("KX_KeepSession"));
        assertCString("unit-1", 65, FakePernix.arg("KX_KeepSession", 0, 0));
        assertArrayEquals(session(7).session_id, FakePernix.arg("KX_KeepSession", 0, 1));
    }
}
