package kxtest;

import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.*;
import org.junit.Test;

/**
 * A two-level table of records read from Java: a null row is skipped and the
 * rows after it are still read (the graph records are the readers that hold
 * such tables).
 */
public class RecordRowsTest extends BridgeTest {
    @Test
    public void aNullRowEndsOnlyItself() throws Exception {
        PerformanceCollectGraph g = new PerformanceCollectGraph();
        g.mtime = new KXTime[0];
        g.port = new PerformanceCollectGraphPort[0];
        g.lu = new PerformanceCollectGraphLU[0];
        g.cache = new PerformanceCollectGraphCache();
        g.backend = new PerformanceCollectGraphBackend[0];
        g.drive = new PerformanceCollectGraphDrive[][] {null,
            {(PerformanceCollectGraphDrive) FrameTableTest.filled(PerformanceCollectGraphDrive.class, null)}};
        PerformanceCollectGraphInfo info = new PerformanceCollectGraphInfo();
        info.graphinfo = new PerformanceCollectGraph[] {g};
        jni.KX_PerformanceDataOutput("g", info);
        byte[] sent = FakePernix.pointee("KX_PerformanceDataOutput", 0, 1, 0);
        boolean data = false;
        for (byte b : sent) data |= b != 0;
        assertTrue("the row after the null one was not read", data);
    }
}
