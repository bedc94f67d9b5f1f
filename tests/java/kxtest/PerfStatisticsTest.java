package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.StatisticalCommand;
import orvane.str.diskarray.StatisticalInformation;
import orvane.str.diskarray.PerformanceAll;
import org.junit.Test;

/** The statistical information block and the two snapshot natives. */
public class PerfStatisticsTest extends BridgeTest {
    static final int STATS = 905108;
    static final int COMMAND = 65580;
    static final int ALL = 1547412;

    @Test
    public void statisticsTreeHoldsEveryCounterOfTheRecordAtItsPlace() {
        byte[] bytes = PerfTree.pattern(StatisticalInformation.class, STATS, 11, false);
        // spot values where the layout places them
        Rec r = Rec.wrap(bytes).i32(824172 - 76, 0x7755AA01).i32(829388 + 37860 + 48, -1).i32(0, 3);
        FakePernix.willWrite("KX_GetStatisticalInformation", 3, r.bytes());
        StatisticalInformation s = jni.KX_GetStatisticalInformation(repeat('s', 80), SessionTest.session(5), -9);

        assertCString(repeat('s', 80), 65, FakePernix.arg("KX_GetStatisticalInformation", 0, 0));
        assertArrayEquals(SessionTest.session(5).session_id, FakePernix.arg("KX_GetStatisticalInformation", 0, 1));
        assertEquals(-9, FakePernix.intArg("KX_GetStatisticalInformation", 0, 2));
        assertArrayEquals(new byte[STATS], FakePernix.arg("KX_GetStatisticalInformation", 0, 3));

        assertEquals(3, s.unite_option);
        assertEquals("last drive of controller 1, just before h_spc", 0x7755AA01, s.drive[1].drive[29][14].d_had_rec);
        assertEquals("0xFFFFFFFF reaches Java as -1", -1, s.drive_err[1].limit.limit_ov_corerr);
        assertEquals(PerfTree.word(824772 + 52 + 48, 11), s.hontai[1].ectl_err);
        assertEquals(PerfTree.word(824932 + 1104 + 3 * 276 + 64 * 4, 11), s.fibre[0].Pson[3].rstlip_syori);
        assertEquals(PerfTree.word(722044 + 14408 + 1808 + 60 * 29 + 4 * 14, 11), s.writeafter[1].raid5_stripe_job[29][14]);
        assertEquals(PerfTree.word(750884 + 136 + (31 * 18 + 17) * 4, 11), s.cache_mem[0].segment[31][17]);
        s.drive[1].drive[29][14].d_had_rec = PerfTree.word(824172 - 76, 11);
        s.drive_err[1].limit.limit_ov_corerr = PerfTree.word(829388 + 37860 + 48, 11);
        s.unite_option = PerfTree.word(0, 11);
        PerfTree.assertPatterned(s, STATS, 11);
    }

    @Test
    public void statisticsConvertBackIntoTheSameRecord() throws ReflectiveOperationException {
        int[] status = {99, 99};
        StatisticalInformation s = PerfTree.patterned(StatisticalInformation.class, 17);
        byte[] want = PerfTree.pattern(StatisticalInformation.class, STATS, 17, true);
        assertArrayEquals(want, PerfProbe.readStatistics(s, status));
        assertArrayEquals(new int[] {0, 0}, status);

        // a table of too few rows stops the reader at its missing row (the
        // members before it given as empty arrays: nothing of theirs is read)
        StatisticalInformation t = new StatisticalInformation();
        t.unite_option = 5;
        for (java.lang.reflect.Field f : PerfTree.fields(StatisticalInformation.class)) {
            if (f.getType().isArray()) f.set(t, java.lang.reflect.Array.newInstance(f.getType().getComponentType(), 0));
        }
        t.writeafter = s.writeafter;
        s.writeafter[1].stripe_job_rmw = new int[29][15];
        s.writeafter[1].stripe_job_rmw[28][14] = 0x3C3C;
        int rmw = 722044 + 14408 + 3608;
        Rec r = Rec.wrap(PerfProbe.readStatistics(t, status));
        assertTrue("a failure, the JVM's exception left pending", status[0] != 0 && status[1] == 1);
        assertEquals(5, r.i32(0));
        assertTrue(r.zero(4, 722044 - 4));
        assertArrayEquals(Rec.wrap(want).slice(722044, 14408 + 3608), r.slice(722044, 14408 + 3608));
        assertEquals(0x3C3C, r.i32(rmw + 4 * (29 * 15 - 1)));
        assertTrue("nothing after it", r.zero(rmw + 4 * 29 * 15, STATS - rmw - 4 * 29 * 15));

        PerfProbe.readStatistics(null, status);
        assertEquals(-1, status[0]);
    }

    @Test
    public void performanceReturnsOneCommandRecordPerController() {
        FakePernix.willWrite("KX_GetPerformance", 2, PerfTree.pattern(StatisticalCommand.class, COMMAND, 1, false));
        FakePernix.willWrite("KX_GetPerformance", 3, PerfTree.pattern(StatisticalCommand.class, COMMAND, 2, false));
        StatisticalCommand[] c = jni.KX_GetPerformance("unit", SessionTest.session(2));
        assertEquals(2, c.length);
        PerfTree.assertPatterned(c[0], COMMAND, 1);
        PerfTree.assertPatterned(c[1], COMMAND, 2);
        assertCString("unit", 65, FakePernix.arg("KX_GetPerformance", 0, 0));
        assertArrayEquals(SessionTest.session(2).session_id, FakePernix.arg("KX_GetPerformance", 0, 1));
        assertArrayEquals(new byte[COMMAND], FakePernix.arg("KX_GetPerformance", 0, 3));
    }

    @Test
    public void performanceAllReturnsBothSnapshotsAndReleasesThemOnEveryPath() throws Throwable {
        FakePernix.willWrite("KX_GetPerformanceAll", 3, PerfTree.pattern(PerformanceAll.class, ALL, 3, false));
        FakePernix.willWrite("KX_GetPerformanceAll", 4, PerfTree.pattern(PerformanceAll.class, ALL, 4, false));
        PerformanceAll[] all = jni.KX_GetPerformanceAll("unit", SessionTest.session(2), 0x1234);
        assertEquals(0x1234, FakePernix.intArg("KX_GetPerformanceAll", 0, 2));
        assertEquals(2, all.length);
        PerfTree.assertPatterned(all[0], ALL, 3);
        PerfTree.assertPatterned(all[1], ALL, 4);
        assertEquals(PerfTree.word(1282716 + (29 * 15 + 14) * 296 + 292, 4), all[1].drive[29][14].unload_time);
        assertEquals(PerfTree.word(1547408, 3), all[0].err_code);

        FakePernix.reset();
        FakePernix.willReturn("KX_GetPerformanceAll", 9);
        assertEquals(9, code(() -> jni.KX_GetPerformanceAll("unit", null, 0)));
        assertEquals(0, FakePernix.liveBlocks());
        FakePernix.willReturn("KX_GetPerformanceAll", 256);
        assertNull(jni.KX_GetPerformanceAll("unit", null, 0));
        assertEquals("session and two snapshots, twice", 6, FakePernix.allocations());
        // 256: no trees to build on the run that counts the allocations
        assertEachAllocationFailureReported(() -> {
            FakePernix.willReturn("KX_GetPerformanceAll", 256);
            jni.KX_GetPerformanceAll("unit", null, 0);
        });
        assertEachAllocationFailureReported(() -> {
            FakePernix.willReturn("KX_GetPerformance", 256);
            jni.KX_GetPerformance("unit", null);
        });
    }

    @Test
    public void configurationAndFileCountIntsTravelBothWays() {
        FakePernix.willWriteInt("KX_GetPfmStatisCfg", 2, -5);
        assertEquals(-5, jni.KX_GetPfmStatisCfg("unit", SessionTest.session(1)));
        jni.KX_SetPfmStatisCfg("unit", SessionTest.session(1), 0x7F0000FF);
        assertEquals(0x7F0000FF, FakePernix.intArg("KX_SetPfmStatisCfg", 0, 2));
        FakePernix.willWriteInt("KX_GetPfmFileMaxCount", 0, 288);
        assertEquals(288, jni.KX_GetPfmFileMaxCount());
        FakePernix.willReturn("KX_GetPfmStatisCfg", 256);
        assertEquals(0, jni.KX_GetPfmStatisCfg("unit", null));
    }
}
