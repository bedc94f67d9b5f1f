package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import orvane.str.diskarray.KXTime;
import orvane.str.diskarray.PerformanceAll;
import orvane.str.diskarray.PerformanceCollectGraph;
import orvane.str.diskarray.PerformanceCollectGraphInfo;
import orvane.str.diskarray.PerformanceOutputGraphInfo;
import org.junit.Test;

/** Graph data: four snapshots in, two graph records out, and graph records back to the library. */
public class PerfGraphTest extends BridgeTest {
    static final int GRAPH = 379540;
    static final int P = PerfOutputTest.P;

    static PerformanceOutputGraphInfo request(int seed) {
        PerformanceOutputGraphInfo in = new PerformanceOutputGraphInfo();
        PerformanceAll[] s = PerfOutputTest.snapshots(seed, false);
        in.preinfo0 = s[0];
        in.afterinfo0 = s[1];
        in.preinfo1 = s[2];
        in.afterinfo1 = s[3];
        return in;
    }

    static byte[] twoGraphs(byte[] first, byte[] second) {
        byte[] out = java.util.Arrays.copyOf(first, 2 * GRAPH);
        System.arraycopy(second, 0, out, GRAPH, GRAPH);
        return out;
    }

    @Test
    public void graphInfoBuildsBothGraphsFromTheRecordsThePointersLeadTo() throws Throwable {
        byte[] g0 = PerfTree.pattern(PerformanceCollectGraph.class, GRAPH, 31, false);
        ByteBuffer b = ByteBuffer.wrap(g0).order(ByteOrder.LITTLE_ENDIAN);
        b.putDouble(196888 + 4, 400.0);      // cache write-pending rate: wraps
        b.putDouble(218884 + 4, -0.019);     // processor use: toward zero
        b.putDouble(230416 + 12, 12.345);    // middle usage (spelled so)
        b.putDouble(218896 + 4, 0.15);       // drive use: 15, not 14 (the product is a double first)
        b.putDouble(218896 + 16 + 4, -0.15);
        String fn = "KX_PerformanceOutputGraphInfo";
        FakePernix.willWrite(fn, 3, twoGraphs(g0, PerfTree.pattern(PerformanceCollectGraph.class, GRAPH, 32, false)));
        PerformanceCollectGraphInfo out = jni.KX_PerformanceOutputGraphInfo("unit", SessionTest.session(4), request(50));

        assertArrayEquals(SessionTest.session(4).session_id, FakePernix.arg(fn, 0, 1));
        assertEquals(4 * P, FakePernix.arg(fn, 0, 2).length);
        PerfOutputTest.assertSnapshots(fn, 2, 50, false);
        assertEquals(2 * P, FakePernix.arg(fn, 0, 3).length);
        assertArrayEquals("graphs handed over zero-filled", new byte[GRAPH], FakePernix.pointee(fn, 0, 3, 1));

        assertEquals(2, out.graphinfo.length);
        PerformanceCollectGraph g = out.graphinfo[0];
        assertEquals(-25536, g.cache.cachewritependingrate);
        assertEquals(-1, g.processor.used_rate);
        assertEquals(1234, g.cache2.cachemiddleusagegrate);
        assertEquals(15, g.driveopr[0][0].operate_rate);
        assertEquals(-15, g.driveopr[0][1].operate_rate);
        g.driveopr[0][0].operate_rate = PerfTree.fixed(218896 + 4, 31);
        g.driveopr[0][1].operate_rate = PerfTree.fixed(218896 + 16 + 4, 31);
        g.cache.cachewritependingrate = PerfTree.fixed(196888 + 4, 31);
        g.processor.used_rate = PerfTree.fixed(218884 + 4, 31);
        g.cache2.cachemiddleusagegrate = PerfTree.fixed(230416 + 12, 31);
        PerfTree.assertPatterned(g, GRAPH, 31);
        PerfTree.assertPatterned(out.graphinfo[1], GRAPH, 32);
        assertEquals(PerfTree.word(197284 + 48 * (29 * 15 + 14) + 44, 32), out.graphinfo[1].drive[29][14].base.onverirate);
        assertEquals(PerfTree.word(264852 + 28 * 4095 + 24, 32), out.graphinfo[1].vu_lu[4095].data_transfer.command_max_time_l);
    }

    @Test
    public void graphInfoFailuresReleaseEveryBuffer() throws Throwable {
        String fn = "KX_PerformanceOutputGraphInfo";
        FakePernix.willReturn(fn, 256);
        assertNull(jni.KX_PerformanceOutputGraphInfo("unit", null, null));
        FakePernix.willReturn(fn, -8);
        assertEquals(-8, code(() -> jni.KX_PerformanceOutputGraphInfo("unit", null, null)));
        assertEquals(258, code(() -> jni.KX_PerformanceOutputGraphInfo(null, null, null)));
        assertEquals(2, FakePernix.calls(fn));
        PerformanceOutputGraphInfo in = new PerformanceOutputGraphInfo();
        assertEachAllocationFailureReported(() -> jni.KX_PerformanceOutputGraphInfo("unit", null, in));
        assertEquals("session, request, four snapshots, graph record, two graphs", 9, countAllocations(
            () -> jni.KX_PerformanceOutputGraphInfo("unit", null, null)));
    }

    static int countAllocations(Body body) throws Throwable {
        FakePernix.reset();
        body.run();
        return FakePernix.allocations();
    }

    @Test
    public void dataOutputHandsBothGraphsBackExactly() throws Throwable {
        PerformanceCollectGraphInfo info = new PerformanceCollectGraphInfo();
        info.graphinfo = new PerformanceCollectGraph[] {PerfTree.patterned(PerformanceCollectGraph.class, 61),
            PerfTree.patterned(PerformanceCollectGraph.class, 62)};
        String fn = "KX_PerformanceDataOutput";
        jni.KX_PerformanceDataOutput("graphs.dat", info);
        assertArrayEquals(cstr("gra", 1024), FakePernix.arg(fn, 0, 0));
        assertArrayEquals(PerfTree.pattern(PerformanceCollectGraph.class, GRAPH, 61, true), FakePernix.pointee(fn, 0, 1, 0));
        assertArrayEquals(PerfTree.pattern(PerformanceCollectGraph.class, GRAPH, 62, true), FakePernix.pointee(fn, 0, 1, 1));

        // graphs holding only their times: each read stops at its first missing array
        PerformanceCollectGraph times = new PerformanceCollectGraph();
        times.mtime = new KXTime[] {new KXTime(), new KXTime()};
        times.mtime[1].tm_isdst = -7;
        byte[] timesOnly = Rec.of(GRAPH).i32(44 + 32, -7).bytes();
        info.graphinfo = new PerformanceCollectGraph[] {times};
        jni.KX_PerformanceDataOutput(null, info);
        assertTrue(FakePernix.isNull(fn, 1, 0));
        assertArrayEquals(timesOnly, FakePernix.pointee(fn, 1, 1, 0));
        assertArrayEquals("only one graph given", new byte[GRAPH], FakePernix.pointee(fn, 1, 1, 1));

        info.graphinfo = new PerformanceCollectGraph[] {times, times, times};
        jni.KX_PerformanceDataOutput("x", info);
        assertArrayEquals("three graphs: two taken", timesOnly, FakePernix.pointee(fn, 2, 1, 1));
        assertEachAllocationFailureReported(() -> jni.KX_PerformanceDataOutput("x", info));
    }
}
