package kxbench;

import java.nio.ByteBuffer;
import orvane.str.diskarray.LuMapping;
import orvane.str.diskarray.LuMappingCtlInfo;
import orvane.str.diskarray.LuMappingHGInfo;
import orvane.str.diskarray.LuMappingPortInfo;

/** The whole LU mapping: 2 controllers of 4 ports of 255 host groups of 256 LUs; 16 host groups in use per port. */
public final class LuMappingCase extends Case {
    private static final int CTLS = 2, PORTS = 4, HGS = 255, LUS = 256;
    private static final int PORT_SIZE = 8 + HGS * 1024, CTL_SIZE = PORTS * PORT_SIZE;

    public LuMappingCase() {
        super("KX_GetLuMappingListAll", 2, 12 + CTLS * CTL_SIZE);
    }

    private static int port(int c, int p) {
        return 12 + c * CTL_SIZE + p * PORT_SIZE;
    }

    @Override
    protected void fillRecord(ByteBuffer b) {
        b.putInt(0, 1).putInt(4, 3).putInt(8, 0);
        for (int c = 0; c < CTLS; c++)
            for (int p = 0; p < PORTS; p++) {
                int o = port(c, p);
                b.put(o, (byte) 1).putInt(o + 4, HGS);
                for (int h = 0; h < HGS; h++)
                    for (int i = 0; i < LUS; i++)
                        b.putInt(o + 8 + 1024 * h + 4 * i, h < 16 && i < 32 ? 32 * h + i : -1);
            }
    }

    @Override
    public Object callNative() {
        return JNI.KX_GetLuMappingListAll(UNIT, SESSION);
    }

    @Override
    public Object buildJni(boolean lax) {
        return planned(lax);
    }

    @Override
    public Object buildFloor() {
        ByteBuffer b = le();
        LuMapping m = new LuMapping();
        m.HostGroupValid = b.getInt(0);
        m.ctrl_flag = b.getInt(4);
        m.mapping_mode = b.getInt(8);
        LuMappingCtlInfo[] ctl = new LuMappingCtlInfo[CTLS];
        for (int c = 0; c < CTLS; c++) {
            LuMappingCtlInfo ci = new LuMappingCtlInfo();
            LuMappingPortInfo[] port = new LuMappingPortInfo[PORTS];
            for (int p = 0; p < PORTS; p++) {
                int o = port(c, p);
                LuMappingPortInfo pi = new LuMappingPortInfo();
                pi.security = b.get(o) & 0xFF;
                pi.hg_tg_max_count = b.getInt(o + 4);
                LuMappingHGInfo[] hg = new LuMappingHGInfo[HGS];
                for (int h = 0; h < HGS; h++) {
                    LuMappingHGInfo t = new LuMappingHGInfo();
                    int[] lu = new int[LUS];
                    b.position(o + 8 + 1024 * h);
                    b.asIntBuffer().get(lu);
                    t.lu = lu;
                    hg[h] = t;
                }
                pi.hg = hg;
                port[p] = pi;
            }
            ci.port = port;
            ctl[c] = ci;
        }
        m.ctl = ctl;
        return m;
    }
}
