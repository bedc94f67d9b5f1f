package kxbench;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.util.Arrays;
import java.util.Map;
import kxtest.FakePernix;
import orvane.str.diskarray.PerformanceAll;
import orvane.str.diskarray.PerformanceCollectGraph;
import orvane.str.diskarray.PerformanceCollectGraphInfo;
import orvane.str.diskarray.PerformanceOutputGraphInfo;

/** The statistics and performance natives: the largest trees of the bridge. */
final class PerfCases {
    private PerfCases() {}

    /** Counters that grow with their position, as a unit in service reports them. */
    static void counters(ByteBuffer b, int from, int to) {
        for (int o = from; o + 4 <= to; o += 4) b.putInt(o, (o / 4) % 100003);
    }

    /** The cumulative counters of both controllers (about 40,000 objects). */
    static final class Statistics extends Case {
        Statistics() {
            super("KX_GetStatisticalInformation", 3, 905108);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            counters(b, 0, b.capacity());
        }

        @Override
        public Object callNative() {
            return JNI.KX_GetStatisticalInformation(UNIT, SESSION, 0);
        }

        @Override
        public Object buildFloor() {
            return PerfFloors.StatisticalInformation(le(), 0);
        }

        @Override
        public Object buildJni(boolean lax) {
            return planned(lax, 0);
        }
    }

    /** Both controllers' full snapshots; the library fills controller 0 here, controller 1 stays zero. */
    static final class Snapshots extends Case {
        private static final byte[] ZERO = new byte[1547412];

        Snapshots() {
            super("KX_GetPerformanceAll", 3, 1547412);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            counters(b, 0, b.capacity());
            for (int o = 1547364; o < 1547400; o += 4) b.putInt(o, 7);  // the time
        }

        @Override
        public Object callNative() {
            return JNI.KX_GetPerformanceAll(UNIT, SESSION, 0);
        }

        @Override
        public Object buildFloor() {
            return new PerformanceAll[] {PerfFloors.PerformanceAll(le(), 0),
                PerfFloors.PerformanceAll(ByteBuffer.wrap(ZERO).order(ByteOrder.LITTLE_ENDIAN), 0)};
        }

        @Override
        public Object buildJni(boolean lax) {
            return planned(lax, 2);
        }
    }

    /** Graph data of both controllers from four empty snapshots (the request is read, the graphs built). */
    static final class Graphs extends Case {
        private static final int GRAPH = 379540;
        private static final PerformanceOutputGraphInfo REQUEST = new PerformanceOutputGraphInfo();

        static {
            REQUEST.preinfo0 = new PerformanceAll();
            REQUEST.afterinfo0 = new PerformanceAll();
            REQUEST.preinfo1 = new PerformanceAll();
            REQUEST.afterinfo1 = new PerformanceAll();
        }

        Graphs() {
            super("KX_PerformanceOutputGraphInfo", 3, 2 * GRAPH);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            counters(b, 0, b.capacity());
            // rates of 0.00 to 99.99 % wherever the records hold doubles
            for (int g = 0; g < 2; g++) {
                int base = g * GRAPH;
                for (int i = 0; i < 4 + 4096 + 8 + 450 + 90; i++) {
                    int o = base + (i < 4 ? 88 + 48 * i : i < 4100 ? 280 + 48 * (i - 4) : i < 4108
                        ? 196900 + 48 * (i - 4100) : i < 4558 ? 197284 + 48 * (i - 4108) : 226096 + 48 * (i - 4558));
                    b.putDouble(o + 16, (i % 10000) / 100.0 + 0.001).putDouble(o + 24, (i % 5000) / 100.0 + 0.001);
                }
                b.putDouble(base + 196888 + 4, 12.5).putDouble(base + 218884 + 4, 33.25);
                for (int i = 0; i < 450; i++) b.putDouble(base + 218896 + 16 * i + 4, (i % 100) + 0.5);
                for (int k = 0; k < 4; k++) b.putDouble(base + 230416 + 4 + 8 * k, 10.0 * k + 0.5);
                for (int p = 0; p < 32; p++) {
                    for (int k = 0; k < 5; k++) b.putDouble(base + 263220 + 44 * p + 4 + 8 * k, p + k + 0.5);
                }
            }
        }

        @Override
        public Object callNative() {
            return JNI.KX_PerformanceOutputGraphInfo(UNIT, SESSION, REQUEST);
        }

        @Override
        public Object buildFloor() {
            ByteBuffer b = le();
            PerformanceCollectGraphInfo info = new PerformanceCollectGraphInfo();
            info.graphinfo = new PerformanceCollectGraph[] {PerfFloors.PerformanceCollectGraph(b, 0),
                PerfFloors.PerformanceCollectGraph(b, GRAPH)};
            return info;
        }

        /** The native's request: four snapshots, read into records before the graphs are built. */
        private static final Object[] SNAPSHOTS = {REQUEST.preinfo0, REQUEST.afterinfo0, REQUEST.preinfo1,
            REQUEST.afterinfo1};
        private static final Object[] SNAPSHOT_PLAN = new Planned(PerfFloors.PerformanceAll(
            ByteBuffer.wrap(new byte[1547412]).order(ByteOrder.LITTLE_ENDIAN), 0), Map.of("KXTime", 8), Map.of()).flat;

        /**
         * The snapshot reader gives the records the native hands the library: checked on the request timed
         * (empty snapshots) and on one of four full snapshots (counters in every field).
         */
        @Override
        public void sample(Object got) {
            super.sample(got);
            PerformanceOutputGraphInfo full = new PerformanceOutputGraphInfo();
            full.preinfo0 = full.afterinfo0 = full.preinfo1 = full.afterinfo1 = PerfFloors.PerformanceAll(
                new Snapshots().le(), 0);
            Object[][] requests = {SNAPSHOTS, {full.preinfo0, full.afterinfo0, full.preinfo1, full.afterinfo1}};
            for (int r = 0; r < 2; r++) {
                if (r == 1) {
                    script(false);
                    JNI.KX_PerformanceOutputGraphInfo(UNIT, SESSION, full);
                }
                for (int k = 0; k < 4; k++) {
                    byte[] floor = HandJni.plannedRead(SNAPSHOT_PLAN, requests[r][k], true);
                    if (!Arrays.equals(floor, FakePernix.pointee(name(), 0, 2, k))) {
                        throw new AssertionError("the snapshot reader differs from the native's: request " + r);
                    }
                }
            }
            script(false);
        }

        /** Like the native: the four snapshots read into records, then the graphs built. */
        @Override
        public Object buildJni(boolean lax) {
            for (Object snapshot : SNAPSHOTS) {
                if (HandJni.plannedRead(SNAPSHOT_PLAN, snapshot, false) == null) return null;
            }
            return planned(lax, 0);
        }
    }
}
