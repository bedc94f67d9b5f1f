package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.PerformanceCSVInfo;
import orvane.str.diskarray.PerformanceCSVOutputOpt;
import orvane.str.diskarray.PerformanceOutputGraphInfo;
import orvane.str.diskarray.PerformanceTime;
import org.junit.Test;

/**
 * Record classes that lack a field: single trees report 2817, the snapshot
 * pair ends quietly and leaves the JVM's own error to the caller, and a
 * request stops reading at the broken field while the library is called all
 * the same.
 */
public class PerfBrokenClassesTest extends BridgeTest {
    static final KXSessionInfo S = new KXSessionInfo();

    @Test
    public void treesReport2817AndTheSnapshotPairEndsWithTheJvmsOwnError() {
        assertEquals(2817, code(() -> jni.KX_GetStatisticalInformation("u", S, 0)));
        assertEquals(2817, code(() -> jni.KX_PerformanceOutputGraphInfo("u", S, new PerformanceOutputGraphInfo())));
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_GetPerformanceAll("u", S, 0)).getClass());
        FakePernix.willReturn("KX_GetPerformanceAll", 9);  // a library error still wins
        assertEquals(9, code(() -> jni.KX_GetPerformanceAll("u", S, 0)));
    }

    @Test
    public void aRequestStopsAtTheBrokenFieldAndStillReachesTheLibrary() {
        PerformanceCSVInfo info = new PerformanceCSVInfo();
        info.fromtime = new PerformanceTime();
        info.totime = new PerformanceTime();
        info.fromDataNum = 5;
        info.opt = new PerformanceCSVOutputOpt[] {new PerformanceCSVOutputOpt(), new PerformanceCSVOutputOpt()};
        info.opt[0].vu_port = 11;
        info.opt[1].port = 12;
        info.dirname = "dir";
        assertEquals(NoSuchFieldError.class, thrown(() -> jni.KX_PerformanceOutputCSV("p", info)).getClass());
        Rec sent = Rec.wrap(FakePernix.arg("KX_PerformanceOutputCSV", 0, 1));
        assertEquals(5, sent.i32(48));
        assertEquals(11, sent.i32(56 + 44));
        assertTrue("second option and directory not read", sent.zero(56 + 52, 52)
            && FakePernix.pointee("KX_PerformanceOutputCSV", 0, 1, 0)[0] == 0);
    }
}
