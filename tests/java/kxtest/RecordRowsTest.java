package kxtest;

import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.PerformanceCollectGraph;
import orvane.str.diskarray.PerformanceCollectGraphInfo;
import org.junit.Test;

/**
 * A two-level table of records read from Java: a null row is skipped, its
 * slots left clear, and the rows and fields after it are still read (the
 * graph records are the readers that hold such tables).
 */
public class RecordRowsTest extends BridgeTest {
    byte[] graphSent(PerformanceCollectGraph g) {
        PerformanceCollectGraphInfo info = new PerformanceCollectGraphInfo();
        info.graphinfo = new PerformanceCollectGraph[] {g};
        FakePernix.reset();
        jni.KX_PerformanceDataOutput("g", info);
        return FakePernix.pointee("KX_PerformanceDataOutput", 0, 1, 0);
    }

    @Test
    public void aNullRowEndsOnlyItself() {
        byte[] full = graphSent(PerfTree.patterned(PerformanceCollectGraph.class, 5));
        PerformanceCollectGraph g = PerfTree.patterned(PerformanceCollectGraph.class, 5);
        g.drive[0] = null;
        byte[] cut = graphSent(g);
        assertEquals(full.length, cut.length);
        int first = 0;
        while (first < full.length && full[first] == cut[first]) first++;
        assertTrue("the null row changed nothing", first < full.length);
        int last = full.length - 1;
        while (full[last] == cut[last]) last--;
        for (int i = first; i <= last; i++) assertEquals("byte " + i + " of the null row", 0, cut[i]);
        assertTrue("nothing read after the null row", last < full.length - 1);
    }
}
