package kxbench;

import java.nio.ByteBuffer;
import orvane.str.diskarray.IntegrationLUInfo;
import orvane.str.diskarray.LogicalUnit;
import orvane.str.diskarray.RaidGroupInformation;
import orvane.str.diskarray.RaidLUInformation;
import orvane.str.diskarray.SpareDisk;
import orvane.str.diskarray.UniteLU;

/** The unified-LU report and the configuration import: the largest records of the pool family. */
final class PoolCases {
    private PoolCases() {}

    /** 40 unified LUs of 2 to 9 children each; every one of the 512 entries has its 512-int child list. */
    static final class UnifiedLus extends Case {
        UnifiedLus() {
            super("KX_IntegrationLUInfo", 1, 1056772);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            b.putInt(0, 40);
            for (int u = 0; u < 40; u++) {
                int o = 4 + 2064 * u;
                int children = 2 + u % 8;
                b.putInt(o, 100 + u).putInt(o + 4, u % 3).putInt(o + 8, 0x200000 * children).putInt(o + 12, children);
                for (int c = 0; c < children; c++) b.putInt(o + 16 + 4 * c, 1000 + 16 * u + c);
            }
        }

        @Override
        public Object callNative() {
            return JNI.KX_IntegrationLUInfo(UNIT);
        }

        @Override
        public Object buildJni(boolean lax) {
            return planned(lax);
        }

        @Override
        public Object buildFloor() {
            ByteBuffer b = le();
            IntegrationLUInfo info = new IntegrationLUInfo();
            info.integration_lu = b.getInt(0);
            UniteLU[] list = new UniteLU[512];
            for (int u = 0; u < 512; u++) {
                int o = 4 + 2064 * u;
                UniteLU l = new UniteLU();
                l.unite_info = b.getInt(o);
                l.status = b.getInt(o + 4);
                l.capacity = b.getInt(o + 8);
                l.child_lu_count = b.getInt(o + 12);
                int[] children = new int[512];
                for (int c = 0; c < 512; c++) children[c] = b.getInt(o + 16 + 4 * c);
                l.child_lun = children;
                list[u] = l;
            }
            info.unite_info = list;
            return info;
        }
    }

    /**
     * A unit's configuration read back from a file: the RAID group information and the LU list of
     * their own cases (the same records, nested), and 4 spare drives.
     */
    static final class ConfigurationImport extends Case {
        private static final Cases.GroupInformation GROUPS = new Cases.GroupInformation();
        private static final Cases.LogicalUnits LUS = new Cases.LogicalUnits();

        ConfigurationImport() {
            super("KX_RaidLuImportEx", 3, 372576);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            b.position(0);
            b.put(GROUPS.bytes).put(LUS.bytes);
            b.position(0);
            b.putInt(372332, 4);
            for (int s = 0; s < 4; s++) b.putInt(372336 + 8 * s, s / 2).putInt(372340 + 8 * s, 14 - s);
        }

        @Override
        public Object callNative() {
            return JNI.KX_RaidLuImportEx(UNIT, SESSION, "/var/tmp/raid-lu.cfg");
        }

        @Override
        public Object buildJni(boolean lax) {
            return planned(lax);
        }

        @Override
        public Object buildFloor() {
            ByteBuffer b = le();
            RaidLUInformation info = new RaidLUInformation();
            info.rgparam = (RaidGroupInformation) GROUPS.buildFloor();  // built from the same bytes
            info.luparam = (LogicalUnit[]) LUS.buildFloor();
            info.spare_count = b.getInt(372332);
            SpareDisk[] spares = new SpareDisk[30];
            for (int s = 0; s < 30; s++) {
                SpareDisk d = new SpareDisk();
                d.unit_no = b.getInt(372336 + 8 * s);
                d.hdu_no = b.getInt(372340 + 8 * s);
                spares[s] = d;
            }
            info.spareinfo = spares;
            return info;
        }
    }
}
