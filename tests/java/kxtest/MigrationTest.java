package kxtest;

import static kxtest.RaidGroupTest.S;
import static kxtest.RaidGroupTest.assertFields;
import static kxtest.RaidGroupTest.put;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;

import java.util.Arrays;
import orvane.str.diskarray.*;
import org.junit.Test;

/** Volume migration: reserve LUs, requests, state and progress. */
public class MigrationTest extends BridgeTest {
    static final String[] PAIR = {"pvol_lun", "pvol_rg_num", "svol_lun", "svol_rg_num", "copying_pace", "owner_id",
        "migration_state", "percent", "migration_error"};
    static final String[] RESERVE = {"lun", "lu_state"};
    static final String[] REQUESTS = {"KX_StartLuMigration", "KX_CancelLuMigration", "KX_SplitLuMigration",
        "KX_SplitLuMigrationFreeOwner", "KX_ChangeCopyPace"};

    void request(String fn, RequestLuMigration r) {
        switch (fn) {
            case "KX_StartLuMigration": jni.KX_StartLuMigration("u", S, r); break;
            case "KX_CancelLuMigration": jni.KX_CancelLuMigration("u", S, r); break;
            case "KX_SplitLuMigration": jni.KX_SplitLuMigration("u", S, r); break;
            case "KX_SplitLuMigrationFreeOwner": jni.KX_SplitLuMigrationFreeOwner("u", S, r); break;
            default: jni.KX_ChangeCopyPace("u", S, r);
        }
    }

    static RequestLuMigration requestOf(int pairs, int count) {
        RequestLuMigration r = new RequestLuMigration();
        r.request_pair_count = count;
        r.owner_id = -7;
        r.lu = new LuMigrationRequestPairInfo[pairs];
        for (int i = 0; i < pairs; i++) {
            LuMigrationRequestPairInfo p = new LuMigrationRequestPairInfo();
            p.pvol_lun = i;
            p.svol_lun = 4095 - i;
            p.copying_pace = i % 3 - 1;
            r.lu[i] = p;
        }
        return r;
    }

    static Rec requestBytes(int pairs, int count) {
        Rec b = Rec.of(24572).i32(0, count).i32(4, -7);
        for (int i = 0; i < Math.min(pairs, 2047); i++)
            b.i32(8 + 12 * i, i).i32(12 + 12 * i, 4095 - i).i32(16 + 12 * i, i % 3 - 1);
        return b;
    }

    @Test
    public void requestsSendEveryPairUpToTheRecordsCapacityWhateverTheCountSays() {
        for (String fn : REQUESTS) {
            FakePernix.reset();
            request(fn, requestOf(2047, 5));
            assertArrayEquals(fn, requestBytes(2047, 5).bytes(), FakePernix.arg(fn, 0, 2));
            request(fn, requestOf(2100, 2100));  // never past the 2047 slots
            assertArrayEquals(fn, requestBytes(2100, 2100).bytes(), FakePernix.arg(fn, 1, 2));
            request(fn, requestOf(1, 0));
            assertArrayEquals(fn, requestBytes(1, 0).bytes(), FakePernix.arg(fn, 2, 2));
            request(fn, null);
            assertArrayEquals(fn, new byte[24572], FakePernix.arg(fn, 3, 2));
            assertEquals(fn, "", FakePernix.faults());
        }
        // A request without a pair list sends its header.
        RequestLuMigration bare = requestOf(0, 3);
        bare.lu = null;
        jni.KX_StartLuMigration("u", S, bare);
        assertArrayEquals(requestBytes(0, 3).bytes(), FakePernix.arg("KX_StartLuMigration", 0, 2));
    }

    @Test
    public void reserveLuMapIsSentAsItsFirst4096Bytes() {
        LuMigrationReserveLU r = new LuMigrationReserveLU();
        for (int i = 0; i < 4096; i++) r.reserve_lu[i] = (byte) (i * 5 + 1);
        jni.KX_AddLuMigrationReserveLU("u", S, r);
        jni.KX_DeleteLuMigrationReserveLU("u", S, r);
        assertArrayEquals(r.reserve_lu, FakePernix.arg("KX_AddLuMigrationReserveLU", 0, 2));
        assertArrayEquals(r.reserve_lu, FakePernix.arg("KX_DeleteLuMigrationReserveLU", 0, 2));
        byte[] longer = Arrays.copyOf(r.reserve_lu, 5000);
        longer[4096] = 1;
        r.reserve_lu = longer;
        jni.KX_AddLuMigrationReserveLU("u", S, r);
        assertArrayEquals(Arrays.copyOf(longer, 4096), FakePernix.arg("KX_AddLuMigrationReserveLU", 1, 2));

        // A short map: the record stays as allocated, the library is called, and
        // the array error reaches Java unless the library reports its own.
        r.reserve_lu = new byte[] {1, 2, 3};
        assertEquals(ArrayIndexOutOfBoundsException.class,
                     thrown(() -> jni.KX_DeleteLuMigrationReserveLU("u", S, r)).getClass());
        assertArrayEquals(new byte[4096], FakePernix.arg("KX_DeleteLuMigrationReserveLU", 1, 2));
        FakePernix.willReturn("KX_DeleteLuMigrationReserveLU", -3);
        assertEquals(-3, code(() -> jni.KX_DeleteLuMigrationReserveLU("u", S, r)));
    }

    @Test
    public void stateAndInformationHaveEverySlot() {
        Rec s = Rec.of(16384);
        for (int i = 0; i < 4096; i++) s.i32(4 * i, i * 3 - 100);
        FakePernix.willWrite("KX_GetLuMigrationState", 2, s.bytes());
        int[] lun = jni.KX_GetLuMigrationState("u", S).lun;
        assertEquals(4096, lun.length);
        for (int i = 0; i < 4096; i++) assertEquals(i * 3 - 100, lun[i]);

        FakePernix.reset();
        Rec r = Rec.of(90080).i32(0, 1).i32(4, 1).i32(8, 0);
        put(put(r, 12, 0, RESERVE), 12 + 8 * 2046, 2046, RESERVE);
        put(put(r, 16388, 0, PAIR), 16388 + 36 * 2046, 2046, PAIR);
        FakePernix.willWrite("KX_GetLuMigrationInformation", 2, r.bytes());
        LuMigrationInformation info = jni.KX_GetLuMigrationInformation("u", S);
        assertArrayEquals(new int[] {1, 1, 0, 2047, 2047}, new int[] {info.option, info.reserve_lu_count,
            info.pair_lu_count, info.reserve_lu.length, info.pair_lu.length});
        assertFields(info.reserve_lu[0], 0, RESERVE);
        assertFields(info.reserve_lu[2046], 2046, RESERVE);
        assertFields(info.pair_lu[0], 0, PAIR);
        assertFields(info.pair_lu[2046], 2046, PAIR);
        assertEquals(0, info.pair_lu[1000].percent);
        // Each record of the call released exactly once (checked after every test).
        assertEquals(2, FakePernix.allocations());
    }
}
