package kxbench;

import java.nio.ByteBuffer;
import orvane.str.diskarray.AreaInfo;
import orvane.str.diskarray.LogicalUnit;
import orvane.str.diskarray.RGAreaInformation;
import orvane.str.diskarray.RaidGroupInformation;
import orvane.str.diskarray.RgDetail;
import orvane.str.diskarray.RgDriveInfo;

/** The natives of RAID groups and logical units that build the largest trees. */
final class Cases {
    private Cases() {}

    /** 4096 LUs, 600 of them configured over 24 RAID groups. */
    static final class LogicalUnits extends Case {
        LogicalUnits() {
            super("KX_GetLogicalUnit", 2, 4096 * 88);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            for (int i = 0; i < 4096; i++) {
                int o = i * 88;
                boolean used = i < 600;
                b.putInt(o, i);
                if (!used) continue;
                int[] v = {i, i % 24, 5, 1, 2097152 * (1 + i % 8), i - 1, i % 4, 1, (i + 1) % 4, i % 4, 256,
                    0, i % 2, (i / 7) % 2, 0x10, 512, 1, 0, 0, (i % 25 == 24) ? 1 : 0, 0x5A, 3};
                for (int f = 0; f < v.length; f++) b.putInt(o + 4 * f, v[f]);
            }
        }

        @Override
        public Object callNative() {
            return JNI.KX_GetLogicalUnit(UNIT, SESSION);
        }

        @Override
        public Object buildJni(boolean lax) {
            return HandJni.logicalUnits(bytes, lax);
        }

        @Override
        public Object buildFloor() {
            ByteBuffer b = le();
            LogicalUnit[] list = new LogicalUnit[4096];
            for (int i = 0; i < 4096; i++) {
                int o = i * 88;
                LogicalUnit u = new LogicalUnit();
                u.luNumber = b.getInt(o);
                u.rgNumber = b.getInt(o + 4);
                u.raid_level = b.getInt(o + 8);
                u.staging = b.getInt(o + 12);
                u.capacity = b.getInt(o + 16);
                u.befor_lun = b.getInt(o + 20);
                u.cachepart_no = b.getInt(o + 24);
                u.pair_cachepart_valid = b.getInt(o + 28);
                u.pair_cachepart_no = b.getInt(o + 32);
                u.current_cachepart_no = b.getInt(o + 36);
                u.stripe = b.getInt(o + 40);
                u.lu_use_type = b.getInt(o + 44);
                u.defaultCTL = b.getInt(o + 48);
                u.currentCTL = b.getInt(o + 52);
                u.status = b.getInt(o + 56);
                u.hostblock = b.getInt(o + 60);
                u.lu_valid = b.getInt(o + 64);
                u.qf_status = b.getInt(o + 68);
                u.correction_status = b.getInt(o + 72);
                u.rg_last_lu = b.getInt(o + 76);
                u.unit_type = b.getInt(o + 80);
                u.unit_type_sub_code = b.getInt(o + 84);
                list[i] = u;
            }
            return list;
        }
    }

    /** A RAID group carved into 40 extents. */
    static final class AreaInformation extends Case {
        AreaInformation() {
            super("KX_GetRGAreaInformation", 3, 163872);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            b.putInt(0, 7).putInt(4, 0x3FFFFF).putInt(8, 40);
            for (int i = 0; i < 40; i++) {
                int o = 12 + 20 * i;
                b.putInt(o, i % 5 == 4 ? 0 : 1).putInt(o + 4, 100 + i).putInt(o + 8, 99 + i)
                    .putInt(o + 12, i % 3).putInt(o + 16, 0x100000 * (i + 1));
            }
        }

        @Override
        public Object callNative() {
            return JNI.KX_GetRGAreaInformation(UNIT, SESSION, 7);
        }

        @Override
        public Object buildJni(boolean lax) {
            return HandJni.areaInformation(bytes, lax);
        }

        @Override
        public Object buildFloor() {
            ByteBuffer b = le();
            RGAreaInformation r = new RGAreaInformation();
            r.rgnum = b.getInt(0);
            r.lumaxcapa = b.getInt(4);
            r.area_count = b.getInt(8);
            AreaInfo[] area = new AreaInfo[8193];
            for (int i = 0; i < 8193; i++) {
                int o = 12 + 20 * i;
                AreaInfo a = new AreaInfo();
                a.areakind = b.getInt(o);
                a.lun = b.getInt(o + 4);
                a.befor_lun = b.getInt(o + 8);
                a.area_capa_h = b.getInt(o + 12);
                a.area_capa_l = b.getInt(o + 16);
                area[i] = a;
            }
            r.area = area;
            return r;
        }
    }

    /** 24 RAID groups, each with its drive chain in the 30 x 15 table. */
    static final class GroupInformation extends Case {
        GroupInformation() {
            super("KX_GetRaidGroupInformation", 2, 11884);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            b.putInt(0, 24);
            for (int g = 0; g < 24; g++) {
                int o = 4 + 52 * g;
                int[] v = {1, g, g % 2 == 0 ? 5 : 1, g / 8, (g % 8) * 5, 4, 1 + g % 2, 0x22000,
                    0, 0x88000 * (1 + g % 3), 0, 0x11000 * g, 1};
                for (int f = 0; f < v.length; f++) b.putInt(o + 4 * f, v[f]);
            }
            for (int r = 0; r < 24; r++) {
                for (int c = 0; c < 5; c++) {
                    int o = 4684 + 240 * r + 16 * c;
                    b.putInt(o, 1).putInt(o + 4, r / 8).putInt(o + 8, (r % 8) * 5 + c + 1).putInt(o + 12, c / 4);
                }
            }
        }

        @Override
        public Object callNative() {
            return JNI.KX_GetRaidGroupInformation(UNIT, SESSION);
        }

        @Override
        public Object buildJni(boolean lax) {
            return HandJni.raidGroupInformation(bytes, lax);
        }

        @Override
        public Object buildFloor() {
            ByteBuffer b = le();
            RaidGroupInformation info = new RaidGroupInformation();
            info.rg_count = b.getInt(0);
            RgDetail[] rg = new RgDetail[90];
            for (int i = 0; i < 90; i++) {
                int o = 4 + 52 * i;
                RgDetail d = new RgDetail();
                d.valid_index = b.getInt(o);
                d.rgnum = b.getInt(o + 4);
                d.level = b.getInt(o + 8);
                d.start_unit_no = b.getInt(o + 12);
                d.start_hdu_no = b.getInt(o + 16);
                d.parity_hdu_count = b.getInt(o + 20);
                d.parity_count = b.getInt(o + 24);
                d.minimum_capa = b.getInt(o + 28);
                d.total_capa_h = b.getInt(o + 32);
                d.total_capa_l = b.getInt(o + 36);
                d.rest_capa_h = b.getInt(o + 40);
                d.rest_capa_l = b.getInt(o + 44);
                d.rg_type = b.getInt(o + 48);
                rg[i] = d;
            }
            info.rg = rg;
            RgDriveInfo[][] rgdrv = new RgDriveInfo[30][];
            for (int r = 0; r < 30; r++) {
                RgDriveInfo[] row = new RgDriveInfo[15];
                for (int c = 0; c < 15; c++) {
                    int o = 4684 + 240 * r + 16 * c;
                    RgDriveInfo d = new RgDriveInfo();
                    d.valid_index = b.getInt(o);
                    d.next_unit_no = b.getInt(o + 4);
                    d.next_hdu_no = b.getInt(o + 8);
                    d.paritygroup_no = b.getInt(o + 12);
                    row[c] = d;
                }
                rgdrv[r] = row;
            }
            info.rgdrv = rgdrv;
            return info;
        }
    }
}
