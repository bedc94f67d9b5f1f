package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import orvane.str.diskarray.*;
import org.junit.Test;

/**
 * Firmware and replication record classes that lack a field, hold one with
 * another type or cannot be constructed: a getter reports 2817 however deep the
 * broken record sits; a reader stops at the broken field, the library is
 * called with what was read and the JVM's error reaches the caller unless the
 * library reports its own.
 */
public class FwReplBrokenClassesTest extends BridgeTest {
    static final KXSessionInfo S = new KXSessionInfo();

    @Test
    public void gettersReport2817WhateverRecordIsBroken() {
        assertEquals(2817, code(() -> jni.KX_GetPairInformation("u", S)));         // a mirror's time
        assertEquals(2817, code(() -> jni.KX_GetCouplingInfo("u", S)));            // no constructor
        assertEquals(2817, code(() -> jni.KX_GetLuMigrationState("u", S)));        // long[] for int[]
        // An unset text leaves the JVM's error pending: the revision holding it
        // cannot be stored, so the enclosure records fail as a whole.
        assertEquals(2817, code(() -> jni.KX_GetENCMicroInformation()));
        assertEquals(2817, code(() -> jni.KX_GetENCStatusList("u", S)));
        assertEquals(0, FakePernix.liveBlocks());
    }

    @Test
    public void requestReadingStopsAtTheFirstBrokenPair() {
        RequestLuMigration r = new RequestLuMigration();
        r.request_pair_count = 2;
        r.owner_id = 6;
        r.lu = new LuMigrationRequestPairInfo[] {new LuMigrationRequestPairInfo(), new LuMigrationRequestPairInfo()};
        r.lu[0].pvol_lun = 10;
        r.lu[0].svol_lun = 11;
        r.lu[1].pvol_lun = 12;
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_StartLuMigration("u", S, r)).getClass());
        byte[] expected = Rec.of(24572).i32(0, 2).i32(4, 6).i32(8, 10).i32(12, 11).bytes();
        assertArrayEquals(expected, FakePernix.arg("KX_StartLuMigration", 0, 2));
        FakePernix.willReturn("KX_ChangeCopyPace", 44);
        assertEquals(44, code(() -> jni.KX_ChangeCopyPace("u", S, r)));
    }
}
