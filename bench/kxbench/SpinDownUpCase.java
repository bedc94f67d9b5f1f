package kxbench;

import java.nio.ByteBuffer;
import orvane.str.diskarray.SpinDownUpInformation;
import orvane.str.diskarray.SpinDownUpLuInfo;
import orvane.str.diskarray.SpinDownUpRGInfo;

/** Power-saving state of 24 RAID groups and 600 LUs. */
public final class SpinDownUpCase extends Case {
    public SpinDownUpCase() {
        super("KX_GetSpinDownUpInformation", 2, 50964);
    }

    @Override
    protected void fillRecord(ByteBuffer b) {
        b.putInt(0, 1).putInt(4, 24).putInt(1808, 600);
        for (int g = 0; g < 24; g++) {
            int o = 8 + 20 * g;
            b.putInt(o, g).putInt(o + 4, g % 3).putInt(o + 8, g % 2).putInt(o + 12, 10 * g).putInt(o + 16, g % 7 == 6 ? 1 : 0);
        }
        for (int i = 0; i < 600; i++) {
            int o = 1812 + 12 * i;
            b.putInt(o, i).putInt(o + 4, i % 2).putInt(o + 8, i % 5);
        }
    }

    @Override
    public Object callNative() {
        return JNI.KX_GetSpinDownUpInformation(UNIT, SESSION);
    }

    @Override
    public Object buildJni(boolean lax) {
        return HandJni.spinDownUp(bytes, lax);
    }

    @Override
    public Object buildFloor() {
        ByteBuffer b = le();
        SpinDownUpInformation info = new SpinDownUpInformation();
        info.option = b.getInt(0);
        info.rg_count = b.getInt(4);
        SpinDownUpRGInfo[] rg = new SpinDownUpRGInfo[90];
        for (int g = 0; g < 90; g++) {
            int o = 8 + 20 * g;
            SpinDownUpRGInfo r = new SpinDownUpRGInfo();
            r.rgnum = b.getInt(o);
            r.rg_power_saving_status = b.getInt(o + 4);
            r.rg_power_saving = b.getInt(o + 8);
            r.spin_down_count = b.getInt(o + 12);
            r.spin_error = b.getInt(o + 16);
            rg[g] = r;
        }
        info.rg = rg;
        info.lu_count = b.getInt(1808);
        SpinDownUpLuInfo[] lu = new SpinDownUpLuInfo[4096];
        for (int i = 0; i < 4096; i++) {
            int o = 1812 + 12 * i;
            SpinDownUpLuInfo l = new SpinDownUpLuInfo();
            l.lun = b.getInt(o);
            l.lu_power_saving = b.getInt(o + 4);
            l.lu_power_saving_detail = b.getInt(o + 8);
            lu[i] = l;
        }
        info.lu = lu;
        return info;
    }
}
