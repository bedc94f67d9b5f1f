package kxtest;

import static kxtest.PoolsTest.ints;
import static kxtest.PoolsTest.putInts;
import static kxtest.RaidGroupTest.S;
import static kxtest.RaidGroupTest.assertFields;
import static kxtest.RaidGroupTest.fill;
import static kxtest.RaidGroupTest.put;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.*;
import org.junit.Test;

/** LU cache settings: prefetch sizes, cache partitions per LU, prefetch tuning and turbo LUs. */
public class PoolsCacheTest extends BridgeTest {
    static final String[] PREFETCH = {"stg_rd0", "stg_rd1", "stg_rd5", "stg_next", "stg_hed_size"};
    static final String[] PARTITION_HEAD = {"option", "support_index", "valid_index"};
    static final String[] TUNING_HEAD = {"support_index", "valid_index", "set_mode", "setting_range",
        "multi_stream_read", "multi_stream_write", "seq_count", "next_pre_mode", "pre_std"};
    static final String[] LU_RANGE = {"multi_stream_read", "multi_stream_write", "next_pre_mode", "pre_std"};
    static final String[] LU_INFO = {"pre_size_basis", "pre_size_fixation"};
    static final String[] TURBO_INFO = {"current_status", "current_assign", "current_lun", "reserve_assign",
        "reserve_lun"};

    static TurboLu turbo(int... seeds) {
        TurboLu t = new TurboLu();
        t.option = 5;
        t.ctl = new TurboLu_info[seeds.length];
        for (int i = 0; i < seeds.length; i++) t.ctl[i] = fill(new TurboLu_info(), seeds[i], TURBO_INFO);
        return t;
    }

    @Test
    public void prefetchAndPartitionsTravelBothWays() {
        byte[] rec = put(Rec.of(20), 0, 1, PREFETCH).bytes();
        FakePernix.willWrite("KX_GetPrefetchInformation", 2, rec);
        PrefetchInformation p = jni.KX_GetPrefetchInformation("u", S);
        assertFields(p, 1, PREFETCH);
        jni.KX_SetPrefetchInformation("u", S, p);
        assertArrayEquals(rec, FakePernix.arg("KX_SetPrefetchInformation", 0, 2));

        Rec part = put(Rec.of(65548), 0, 2, PARTITION_HEAD);
        for (int k = 0; k < 4; k++) putInts(part, 12 + 16384 * k, ints(4096, 10 + k));
        FakePernix.willWrite("KX_GetLuCachePartition", 2, part.bytes());
        LuCachePartition c = jni.KX_GetLuCachePartition("u", S);
        assertFields(c, 2, PARTITION_HEAD);
        assertArrayEquals(ints(4096, 10), c.current_prt_num);
        assertArrayEquals(ints(4096, 11), c.reserve_prt_num);
        assertArrayEquals(ints(4096, 12), c.now_prt_num);
        assertArrayEquals(ints(4096, 13), c.pair_prt_num);
        jni.KX_SetLuCachePartition("u", S, c);
        assertArrayEquals(part.bytes(), FakePernix.arg("KX_SetLuCachePartition", 0, 2));
    }

    @Test
    public void aShortPartitionTableIsSentPartlyFilledAndLeavesTheBoundsError() {
        LuCachePartition c = fill(new LuCachePartition(), 3, PARTITION_HEAD);
        c.current_prt_num = ints(4097, 4);  // longer: the first 4096
        c.reserve_prt_num = new int[4095];
        c.now_prt_num = ints(4096, 5);
        Throwable t = thrown(() -> jni.KX_SetLuCachePartition("u", S, c));
        assertEquals(ArrayIndexOutOfBoundsException.class, t.getClass());
        assertEquals(1, FakePernix.calls("KX_SetLuCachePartition"));
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetLuCachePartition", 0, 2));
        Rec expected = putInts(put(Rec.of(65548), 0, 3, PARTITION_HEAD), 12, ints(4096, 4));
        assertArrayEquals(expected.bytes(), sent.bytes());
        // A library error still takes its place.
        FakePernix.willReturn("KX_SetLuCachePartition", 12);
        assertEquals(12, code(() -> jni.KX_SetLuCachePartition("u", S, c)));
    }

    static Rec tuning() {
        Rec r = put(Rec.of(98340), 0, 1, TUNING_HEAD);
        put(put(r, 36, 2, LU_RANGE), 36 + 4095 * 16, 3, LU_RANGE);
        return put(put(r, 65572, 4, LU_INFO), 65572 + 4095 * 8, 5, LU_INFO);
    }

    @Test
    public void prefetchTuningBuildsEveryLuAndSkipsANullElement() {
        Rec rec = tuning();
        FakePernix.willWrite("KX_GetPrefetchTuning", 2, rec.bytes());
        PrefetchTuning t = jni.KX_GetPrefetchTuning("u", S);
        assertFields(t, 1, TUNING_HEAD);
        assertEquals(4096, t.lu_range.length);
        assertEquals(4096, t.lu.length);
        assertFields(t.lu_range[0], 2, LU_RANGE);
        assertFields(t.lu_range[4095], 3, LU_RANGE);
        assertFields(t.lu[0], 4, LU_INFO);
        assertFields(t.lu[4095], 5, LU_INFO);
        jni.KX_SetPrefetchTuning("u", S, t);
        assertArrayEquals(rec.bytes(), FakePernix.arg("KX_SetPrefetchTuning", 0, 2));

        // A null element is skipped.
        t.lu[0] = null;
        jni.KX_SetPrefetchTuning("u", S, t);
        Rec sent = Rec.wrap(FakePernix.arg("KX_SetPrefetchTuning", 1, 2));
        assertTrue(sent.zero(65572, 8));
        assertArrayEquals(rec.slice(0, 65572), sent.slice(0, 65572));
        assertArrayEquals(rec.slice(65572 + 8, 32760), sent.slice(65572 + 8, 32760));
    }

    @Test
    public void turboLuTravelsBothWaysWithoutAllocatingItsRecord() {
        Rec rec = put(put(Rec.of(44).i32(0, 7), 4, 1, TURBO_INFO), 24, 2, TURBO_INFO);
        FakePernix.willWrite("KX_GetTurboLU", 2, rec.bytes());
        TurboLu t = jni.KX_GetTurboLU(null, S);
        assertEquals(1, FakePernix.allocations());  // the session only
        assertEquals(7, t.option);
        assertEquals(2, t.ctl.length);
        assertFields(t.ctl[0], 1, TURBO_INFO);
        assertFields(t.ctl[1], 2, TURBO_INFO);
        jni.KX_SetTurboLU(null, S, t);
        assertArrayEquals(rec.bytes(), FakePernix.arg("KX_SetTurboLU", 0, 2));
        // A null session goes as a cleared record.
        jni.KX_SetTurboLU("u", null, t);
        assertArrayEquals(new byte[32], FakePernix.arg("KX_SetTurboLU", 1, 1));
        assertArrayEquals(rec.bytes(), FakePernix.arg("KX_SetTurboLU", 1, 2));
    }

    @Test
    public void turboLuSetterRefusesARecordItCannotReadWhole() throws Throwable {
        TurboLu noCtl = turbo();
        noCtl.ctl = null;
        assertEquals(2817, code(() -> jni.KX_SetTurboLU("u", S, noCtl)));
        assertEquals(2817, code(() -> jni.KX_SetTurboLU("u", S, null)));
        assertEquals(0, FakePernix.calls("KX_SetTurboLU"));
        assertEquals(0, FakePernix.liveBlocks());

        // A null controller entry is skipped; entries past the two are not read.
        TurboLu t = turbo(1, 2, 3);
        t.ctl[0] = null;
        jni.KX_SetTurboLU("u", S, t);
        assertArrayEquals(put(Rec.of(44).i32(0, 5), 24, 2, TURBO_INFO).bytes(), FakePernix.arg("KX_SetTurboLU", 0, 2));
        FakePernix.willReturn("KX_SetTurboLU", -4);
        assertEquals(-4, code(() -> jni.KX_SetTurboLU("u", S, turbo(1, 2))));
        assertEachAllocationFailureReported(() -> jni.KX_SetTurboLU("u", S, turbo(1, 2)));
    }
}
