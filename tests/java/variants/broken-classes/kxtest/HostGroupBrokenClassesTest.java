package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.*;
import org.junit.Test;

/**
 * Record classes with a field of the wrong type, a missing field or no
 * constructor: getters report 2817, except the mapping pair, which ends
 * quietly and leaves the JVM's own error to the caller; readers stop at the
 * broken field and the library is called all the same.
 */
public class HostGroupBrokenClassesTest extends BridgeTest {
    static final KXSessionInfo S = new KXSessionInfo();

    @Test
    public void gettersReport2817ButTheMappingPairEndsQuietly() {
        assertEquals(2817, code(() -> jni.KX_GetHGList("u", S)));
        assertEquals(2817, code(() -> jni.KX_GetHGParameterID("u", S, 0)));
        assertEquals(2817, code(() -> jni.KX_GetHGOptionAll("u", S)));
        assertEquals(2817, code(() -> jni.KX_GetLuMappingListAll("u", S)));

        FakePernix.willWriteInt("KX_GetLuMappingList", 5, 4);
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_GetLuMappingList("u", S, 0, 0, 0)).getClass());
        assertEquals(1, FakePernix.calls("KX_GetLuMappingList"));
        FakePernix.willReturn("KX_GetLuMappingList", 12);  // a library error still wins
        assertEquals(12, code(() -> jni.KX_GetLuMappingList("u", S, 0, 0, 0)));
    }

    @Test
    public void readersStopAtTheBrokenFieldAndTheLibraryIsStillCalled() {
        LuMappingHGInfo t = new LuMappingHGInfo();
        t.lu[0] = 5;
        assertEquals(NoSuchFieldError.class,
                     thrown(() -> jni.KX_SetLuMappingList("u", S, 0, 0, 0, 0, t)).getClass());
        assertTrue(Rec.wrap(FakePernix.arg("KX_SetLuMappingList", 0, 6)).zero(0, 1024));

        LuMapping m = new LuMapping();
        m.HostGroupValid = 1;
        m.mapping_mode = 2;
        LuMappingPortInfo p = new LuMappingPortInfo();
        p.security = 0x1FF;
        p.hg_tg_max_count = 7;
        p.hg = new LuMappingHGInfo[] {t};
        LuMappingCtlInfo c = new LuMappingCtlInfo();
        c.port = new LuMappingPortInfo[] {p, p};
        m.ctl = new LuMappingCtlInfo[] {c, c};
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_SetLuMappingListAll("u", S, m)).getClass());
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetLuMappingListAll", 0, 2));
        assertEquals(1, sent.i32(0));
        assertEquals(2, sent.i32(8));
        assertEquals(0xFF, sent.u8(12));
        assertEquals(7, sent.i32(16));
        assertTrue(sent.zero(20, 2089036 - 20));
    }
}
