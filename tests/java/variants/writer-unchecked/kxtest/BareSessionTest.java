package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;

import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUserInfo;
import org.junit.Test;

/** Record classes that lack a field or leave an array unset. */
public class BareSessionTest extends BridgeTest {
    @Test
    public void aSessionWithoutTokenArraySendsAnEmptyRecord() {
        jni.KX_KeepSession("u", new KXSessionInfo());
        assertArrayEquals(new byte[32], FakePernix.arg("KX_KeepSession", 0, 1));
    }

    @Test
    public void aMissingPasswordFieldFailsTheLoginConversion() {
        KXUserInfo u = new KXUserInfo();
        u.user = "admin";
        FakePernix.willWrite("KX_LoginKXUnit", 3, Rec.of(36).str(0, "a").str(17, "b").bytes());
        // The credentials read up to the missing field still reach the library;
        // the answer cannot then be built and is reported as a marshaling failure.
        assertEquals(2817, code(() -> jni.KX_LoginKXUnit("u", 0, u)));
        Rec cred = Rec.wrap(FakePernix.arg("KX_LoginKXUnit", 0, 2));
        assertEquals("admin", cred.str(0, 17));
        assertEquals("", cred.str(17, 17));
    }

    @Test
    public void writerLeavesTheTokenNullWhenTheClassDoesNotMakeIt() {
        Object s = CoreProbe.newObject("orvane/str/diskarray/KXSessionInfo");
        assertNull(((KXSessionInfo) s).session_id);
    }
}
