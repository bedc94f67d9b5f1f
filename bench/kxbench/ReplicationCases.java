package kxbench;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.util.Arrays;
import kxtest.FakePernix;
import orvane.str.diskarray.LuMigrationInformation;
import orvane.str.diskarray.LuMigrationPairInfo;
import orvane.str.diskarray.LuMigrationRequestPairInfo;
import orvane.str.diskarray.LuMigrationReserveLUInfo;
import orvane.str.diskarray.MirrorLUInfo;
import orvane.str.diskarray.PairCreateTime;
import orvane.str.diskarray.PairInfo;
import orvane.str.diskarray.PairLUInfo;
import orvane.str.diskarray.PoolCtlCapa;
import orvane.str.diskarray.PoolDetailCapa;
import orvane.str.diskarray.RequestLuMigration;

/** Copy pairs and volume migration: the largest trees built, and the largest request read. */
final class ReplicationCases {
    private ReplicationCases() {}

    /** Snapshot pairs: 300 primary LUs with 1 to 15 mirrors; the tree always holds 2046 x 15 mirrors. */
    static final class PairInformation extends Case {
        PairInformation() {
            super("KX_GetPairInformation", 2, 1645024);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            b.putInt(0, 1).putInt(36, 300);
            for (int c = 0; c < 2; c++) b.putInt(4 + 16 * c, 1).putInt(8 + 16 * c, c).putInt(12 + 16 * c, 0).putInt(16 + 16 * c, 1 << 30);
            for (int i = 0; i < 300; i++) {
                int o = 40 + 804 * i;
                int mirrors = 1 + i % 15;
                b.putInt(o, i).putInt(o + 4, 2097152).putInt(o + 8, 0).putInt(o + 12, 4096 * i).putInt(o + 16, i % 100)
                    .putInt(o + 20, mirrors);
                for (int m = 0; m < mirrors; m++) {
                    int q = o + 24 + 52 * m;
                    b.putInt(q, m).putInt(q + 4, 2000 + i * 15 + m).putInt(q + 8, m % 2).putInt(q + 12, m % 2)
                        .putInt(q + 16, 3).putInt(q + 20, m * 10).putInt(q + 24, m);
                    b.putInt(q + 28, 2026).putInt(q + 32, 11).putInt(q + 36, 1 + m).putInt(q + 40, i % 24)
                        .putInt(q + 44, m * 4).putInt(q + 48, i % 60);
                }
            }
        }

        @Override
        public Object callNative() {
            return JNI.KX_GetPairInformation(UNIT, SESSION);
        }

        @Override
        public Object buildJni(boolean lax) {
            return HandJni.pairInformation(bytes, lax);
        }

        @Override
        public Object buildFloor() {
            ByteBuffer b = le();
            PairInfo p = new PairInfo();
            p.option = b.getInt(0);
            p.ctl = new PoolCtlCapa[2];
            for (int c = 0; c < 2; c++) {
                int o = 4 + 16 * c;
                PoolCtlCapa ctl = new PoolCtlCapa();
                ctl.pool_enable_count = b.getInt(o);
                PoolDetailCapa d = new PoolDetailCapa();
                d.pool_no = b.getInt(o + 4);
                d.poolcapa_h = b.getInt(o + 8);
                d.poolcapa_l = b.getInt(o + 12);
                ctl.pool = new PoolDetailCapa[] {d};
                p.ctl[c] = ctl;
            }
            p.pair_count = b.getInt(36);
            p.lu = new PairLUInfo[2046];
            for (int i = 0; i < 2046; i++) {
                int o = 40 + 804 * i;
                PairLUInfo lu = new PairLUInfo();
                lu.lun = b.getInt(o);
                lu.capacity = b.getInt(o + 4);
                lu.pool_usedcapa_h = b.getInt(o + 8);
                lu.pool_usedcapa_l = b.getInt(o + 12);
                lu.pool_usedrate = b.getInt(o + 16);
                lu.mirror_count = b.getInt(o + 20);
                lu.m_info = new MirrorLUInfo[15];
                for (int m = 0; m < 15; m++) {
                    int q = o + 24 + 52 * m;
                    MirrorLUInfo mi = new MirrorLUInfo();
                    mi.mirror_no = b.getInt(q);
                    mi.lun = b.getInt(q + 4);
                    mi.ctl_no = b.getInt(q + 8);
                    mi.pool_no = b.getInt(q + 12);
                    mi.pair_status = b.getInt(q + 16);
                    mi.usedcapa = b.getInt(q + 20);
                    mi.changed_rate = b.getInt(q + 24);
                    PairCreateTime t = new PairCreateTime();
                    t.year = b.getInt(q + 28);
                    t.month = b.getInt(q + 32);
                    t.day = b.getInt(q + 36);
                    t.hour = b.getInt(q + 40);
                    t.minute = b.getInt(q + 44);
                    t.second = b.getInt(q + 48);
                    mi.time = t;
                    lu.m_info[m] = mi;
                }
                p.lu[i] = lu;
            }
            return p;
        }
    }

    /** 200 reserved LUs and 150 migrations; the tree always holds 2047 of each. */
    static final class MigrationInformation extends Case {
        MigrationInformation() {
            super("KX_GetLuMigrationInformation", 2, 90080);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            b.putInt(0, 1).putInt(4, 200).putInt(8, 150);
            for (int i = 0; i < 200; i++) b.putInt(12 + 8 * i, 3000 + i).putInt(16 + 8 * i, i % 3);
            for (int i = 0; i < 150; i++) {
                int o = 16388 + 36 * i;
                b.putInt(o, i).putInt(o + 4, i % 24).putInt(o + 8, 3000 + i).putInt(o + 12, 30 + i % 6)
                    .putInt(o + 16, i % 3).putInt(o + 20, i % 2).putInt(o + 24, 1 + i % 4).putInt(o + 28, i % 101)
                    .putInt(o + 32, 0);
            }
        }

        @Override
        public Object callNative() {
            return JNI.KX_GetLuMigrationInformation(UNIT, SESSION);
        }

        @Override
        public Object buildJni(boolean lax) {
            return planned(lax);
        }

        @Override
        public Object buildFloor() {
            ByteBuffer b = le();
            LuMigrationInformation info = new LuMigrationInformation();
            info.option = b.getInt(0);
            info.reserve_lu_count = b.getInt(4);
            info.pair_lu_count = b.getInt(8);
            info.reserve_lu = new LuMigrationReserveLUInfo[2047];
            for (int i = 0; i < 2047; i++) {
                LuMigrationReserveLUInfo r = new LuMigrationReserveLUInfo();
                r.lun = b.getInt(12 + 8 * i);
                r.lu_state = b.getInt(16 + 8 * i);
                info.reserve_lu[i] = r;
            }
            info.pair_lu = new LuMigrationPairInfo[2047];
            for (int i = 0; i < 2047; i++) {
                int o = 16388 + 36 * i;
                LuMigrationPairInfo p = new LuMigrationPairInfo();
                p.pvol_lun = b.getInt(o);
                p.pvol_rg_num = b.getInt(o + 4);
                p.svol_lun = b.getInt(o + 8);
                p.svol_rg_num = b.getInt(o + 12);
                p.copying_pace = b.getInt(o + 16);
                p.owner_id = b.getInt(o + 20);
                p.migration_state = b.getInt(o + 24);
                p.percent = b.getInt(o + 28);
                p.migration_error = b.getInt(o + 32);
                info.pair_lu[i] = p;
            }
            return info;
        }
    }

    /**
     * A request of 2047 migration pairs read from Java.  The floor reads the same
     * fields into a little-endian buffer of the record's size; the bytes the
     * library receives are checked once against it, outside the timing.  Both
     * sides return the record size as their result.
     */
    static final class StartMigration extends Case {
        private static final int SIZE = 24572;
        private final RequestLuMigration request = new RequestLuMigration();

        StartMigration() {
            super("KX_StartLuMigration", 2, SIZE);
            request.request_pair_count = 2047;
            request.owner_id = 1;
            request.lu = new LuMigrationRequestPairInfo[2047];
            for (int i = 0; i < 2047; i++) {
                LuMigrationRequestPairInfo p = new LuMigrationRequestPairInfo();
                p.pvol_lun = i;
                p.svol_lun = 2047 + i;
                p.copying_pace = i % 3;
                request.lu[i] = p;
            }
            FakePernix.reset();
            JNI.KX_StartLuMigration(UNIT, SESSION, request);
            byte[] sent = FakePernix.arg("KX_StartLuMigration", 0, 2);
            if (!Arrays.equals(sent, floorBytes()))
                throw new AssertionError("the floor does not read the request the native sends");
            if (!Arrays.equals(sent, HandJni.startLuMigration(request, false))
                || !Arrays.equals(sent, HandJni.startLuMigration(request, true)))
                throw new AssertionError("the JNI floor does not read the request the native sends");
        }

        @Override
        protected void fillRecord(ByteBuffer b) {}  // nothing is served: the library only reads

        @Override
        public Object callNative() {
            JNI.KX_StartLuMigration(UNIT, SESSION, request);
            return quiet ? null : Integer.valueOf(SIZE);
        }

        private byte[] floorBytes() {
            ByteBuffer b = ByteBuffer.allocate(SIZE).order(ByteOrder.LITTLE_ENDIAN);
            b.putInt(0, request.request_pair_count).putInt(4, request.owner_id);
            LuMigrationRequestPairInfo[] lu = request.lu;
            for (int i = 0; i < Math.min(lu.length, 2047); i++) {
                LuMigrationRequestPairInfo p = lu[i];
                if (p == null) continue;
                int o = 8 + 12 * i;
                b.putInt(o, p.pvol_lun).putInt(o + 4, p.svol_lun).putInt(o + 8, p.copying_pace);
            }
            return b.array();
        }

        @Override
        public boolean builds() {
            return false;
        }

        @Override
        public Object input() {
            return request;
        }

        @Override
        public Object buildJni(boolean lax) {
            byte[] record = HandJni.startLuMigration(request, lax);
            return record == null ? null : Integer.valueOf(record.length);
        }

        @Override
        public Object buildFloor() {
            byte[] record = floorBytes();
            Bench.sink = record;
            return Integer.valueOf(record.length);
        }
    }
}
