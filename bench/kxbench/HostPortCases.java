package kxbench;

import java.nio.ByteBuffer;
import java.nio.charset.StandardCharsets;
import java.util.Arrays;
import java.util.List;
import java.util.Map;
import kxtest.FakePernix;
import orvane.str.diskarray.*;

/** The largest getters of Fibre Channel ports, iSCSI and LU guard. */
final class HostPortCases {
    private HostPortCases() {}

    /** One case per family: Fibre Channel ports, iSCSI, LU guard. */
    static List<Case> all() {
        return List.of(new FibreInformationPair(), new ChapUsers(), new LuGuardTable());
    }

    static final int FIBRE = 152636;

    /** The NUL-terminated text of the n-byte field at off. */
    static String text(byte[] b, int off, int n) {
        int end = off;
        while (end < off + n && b[end] != 0) end++;
        return new String(b, off, end - off, StandardCharsets.UTF_8);
    }

    static void put(ByteBuffer b, int off, String s) {
        byte[] t = s.getBytes(StandardCharsets.UTF_8);
        for (int i = 0; i < t.length; i++) b.put(off + i, t[i]);
    }

    /** Both controllers, 4 ports each, 16 host names admitted per port. */
    static final class FibreInformationPair extends Case {
        FibreInformationPair() {
            super("KX_GetFibreInformation", 2, 2 * FIBRE);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            for (int c = 0; c < 2; c++) {
                int base = c * FIBRE;
                b.put(base, (byte) 1).putInt(base + 4, 0x0F);
                for (int p = 0; p < 4; p++) {
                    b.putInt(base + 8 + 4 * p, 2).putInt(base + 24 + 4 * p, 1);
                    int o = base + 40 + 68 * p;
                    put(b, o, String.format("50060E80%08X", 0x1000 * c + p));
                    put(b, o + 17, String.format("50060E81%08X", 0x1000 * c + p));
                    put(b, o + 34, "0x" + (c * 4 + p) + "0E");
                    put(b, o + 41, "0xE" + p);
                    b.put(o + 48, (byte) 0xF0).put(o + 49, (byte) 1).put(o + 50, (byte) 7).put(o + 51, (byte) 4)
                        .put(o + 52, (byte) 4).putInt(o + 56, 1).putInt(o + 60, 2).putInt(o + 64, 0);
                    int s = base + 312 + 51 * p;
                    put(b, s, "BIU-0402");
                    put(b, s + 9, "SEQ-0110");
                    put(b, s + 18, "0850/A");
                    put(b, s + 27, "0850/B");
                    put(b, s + 36, "EN-21");
                    put(b, s + 45, "4.3");
                    int q = base + 516 + 38028 * p;
                    b.put(q, (byte) 1).put(q + 1, (byte) 0).putInt(q + 4, 16).putInt(q + 8, 1);
                    for (int i = 0; i < 16; i++) {
                        int m = q + 12 + 297 * i;
                        put(b, m, String.format("2000%04X%08X", c * 4 + p, i));
                        put(b, m + 17, String.format("2100%04X%08X", c * 4 + p, i));
                        put(b, m + 34, String.format("0x%04X", i));
                        for (int k = 0; k < 8; k++) b.put(m + 41 + k, (byte) (0xFF >> (i % 8)));
                    }
                }
                put(b, base + 152628, "H" + c + "A1");
            }
        }

        @Override
        protected void scriptMore() {
            FakePernix.willWrite(name(), 3, Arrays.copyOfRange(bytes, FIBRE, 2 * FIBRE));
        }

        @Override
        public Object callNative() {
            return JNI.KX_GetFibreInformation(UNIT, SESSION);
        }

        @Override
        public Object buildJni(boolean lax) {
            return planned(lax);
        }

        @Override
        protected Map<String, String> hints() {
            return Map.ofEntries(Map.entry("FibreInformation.lun_security", "s+3"),
                Map.entry("FibreInformation.product_number", "z5+3"),
                Map.entry("FibreInformationPort.node_name", "z17"), Map.entry("FibreInformationPort.port_name", "z17"),
                Map.entry("FibreInformationPort.n_port_id", "z7"), Map.entry("FibreInformationPort.get_address", "z7"),
                Map.entry("FibreInformationPort.frame_size", "u"), Map.entry("FibreInformationPort.if_board", "u"),
                Map.entry("FibreInformationPort.support_speed", "u"), Map.entry("FibreInformationPort.set_speed", "u"),
                Map.entry("FibreInformationPort.refer_speed", "u+3"),
                Map.entry("FibreInformationSfc.biu", "z9"), Map.entry("FibreInformationSfc.sequence", "z9"),
                Map.entry("FibreInformationSfc.oper_firmware", "z9"), Map.entry("FibreInformationSfc.post_firmware", "z9"),
                Map.entry("FibreInformationSfc.endec", "z9"), Map.entry("FibreInformationSfc.fc_ph", "z6"),
                Map.entry("FibreInformationSecurity.access_guard", "s"),
                Map.entry("FibreInformationSecurity.all_lun_security", "s+2"),
                Map.entry("FibreInformationPermission.node_name", "z17"),
                Map.entry("FibreInformationPermission.port_name", "z17"),
                Map.entry("FibreInformationPermission.n_port_id", "z7"));
        }

        @Override
        public Object buildFloor() {
            ByteBuffer b = le();
            FibreInformation[] pair = new FibreInformation[2];
            for (int c = 0; c < 2; c++) {
                int base = c * FIBRE;
                FibreInformation f = new FibreInformation();
                f.lun_security = b.get(base);
                f.port_valid = b.getInt(base + 4);
                f.topology = new int[4];
                f.topology_ref = new int[4];
                for (int i = 0; i < 4; i++) {
                    f.topology[i] = b.getInt(base + 8 + 4 * i);
                    f.topology_ref[i] = b.getInt(base + 24 + 4 * i);
                }
                f.port = new FibreInformationPort[4];
                f.sfc = new FibreInformationSfc[4];
                f.security = new FibreInformationSecurity[4];
                for (int p = 0; p < 4; p++) {
                    int o = base + 40 + 68 * p;
                    FibreInformationPort port = new FibreInformationPort();
                    port.node_name = text(bytes, o, 17);
                    port.port_name = text(bytes, o + 17, 17);
                    port.n_port_id = text(bytes, o + 34, 7);
                    port.get_address = text(bytes, o + 41, 7);
                    port.frame_size = b.get(o + 48) & 0xFF;
                    port.if_board = b.get(o + 49) & 0xFF;
                    port.support_speed = b.get(o + 50) & 0xFF;
                    port.set_speed = b.get(o + 51) & 0xFF;
                    port.refer_speed = b.get(o + 52) & 0xFF;
                    port.connect_valid = b.getInt(o + 56);
                    port.connect = new FibreInformationConnector[2];
                    for (int k = 0; k < 2; k++) {
                        port.connect[k] = new FibreInformationConnector();
                        port.connect[k].topology_ref = b.getInt(o + 60 + 4 * k);
                    }
                    f.port[p] = port;

                    int s = base + 312 + 51 * p;
                    FibreInformationSfc sfc = new FibreInformationSfc();
                    sfc.biu = text(bytes, s, 9);
                    sfc.sequence = text(bytes, s + 9, 9);
                    sfc.oper_firmware = text(bytes, s + 18, 9);
                    sfc.post_firmware = text(bytes, s + 27, 9);
                    sfc.endec = text(bytes, s + 36, 9);
                    sfc.fc_ph = text(bytes, s + 45, 6);
                    f.sfc[p] = sfc;

                    int q = base + 516 + 38028 * p;
                    FibreInformationSecurity sec = new FibreInformationSecurity();
                    sec.access_guard = b.get(q);
                    sec.all_lun_security = b.get(q + 1);
                    sec.permission_count = b.getInt(q + 4);
                    sec.security_chk_lv = b.getInt(q + 8);
                    sec.permission = new FibreInformationPermission[128];
                    for (int i = 0; i < 128; i++) {
                        int m = q + 12 + 297 * i;
                        FibreInformationPermission perm = new FibreInformationPermission();
                        perm.node_name = text(bytes, m, 17);
                        perm.port_name = text(bytes, m + 17, 17);
                        perm.n_port_id = text(bytes, m + 34, 7);
                        System.arraycopy(bytes, m + 41, perm.lun_security_bitmap, 0, 256);
                        sec.permission[i] = perm;
                    }
                    f.security[p] = sec;
                }
                f.product_number = text(bytes, base + 152628, 5);
                pair[c] = f;
            }
            return pair;
        }
    }

    /** 64 CHAP users on each of the 8 ports. */
    static final class ChapUsers extends Case {
        ChapUsers() {
            super("KX_GetiSCSICHAPUserInformationAll", 2, 1360004);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            b.putInt(0, 1);
            for (int c = 0; c < 2; c++) {
                for (int p = 0; p < 4; p++) {
                    int o = 4 + 680000 * c + 170000 * p;
                    b.putInt(o, 1).putInt(o + 4, 1).putInt(o + 8, 512).putInt(o + 12, 64);
                    for (int u = 0; u < 64; u++) {
                        int e = o + 16 + 332 * u;
                        b.putInt(e, 1).putInt(e + 4, c);
                        put(b, e + 8, "iqn.2026-11.com.example:host" + (c * 4 + p) + "-user" + u);
                        put(b, e + 265, "chap-secret-" + u + "-" + p);
                        b.put(e + 298, (byte) (1 << (u % 8))).put(e + 299, (byte) u);
                    }
                }
            }
        }

        @Override
        public Object callNative() {
            return JNI.KX_GetiSCSICHAPUserInformationAll(UNIT, SESSION);
        }

        @Override
        public Object buildJni(boolean lax) {
            return planned(lax);
        }

        @Override
        protected Map<String, String> hints() {
            return Map.of("KXiSCSICHAPUserInfo.user_name", "z257", "KXiSCSICHAPUserInfo.secret", "z33");
        }

        @Override
        protected Map<String, Integer> reservedTails() {
            return Map.of("KXiSCSICHAPUserInfo", 2);
        }

        @Override
        public Object buildFloor() {
            ByteBuffer b = le();
            KXiSCSICHAPUserInformationAll all = new KXiSCSICHAPUserInformationAll();
            all.option = b.getInt(0);
            all.ctl = new KXiSCSICHAPUserCTLInfo[2];
            for (int c = 0; c < 2; c++) {
                KXiSCSICHAPUserCTLInfo ctl = new KXiSCSICHAPUserCTLInfo();
                ctl.port = new KXiSCSICHAPUserPortInfo[4];
                for (int p = 0; p < 4; p++) {
                    int o = 4 + 680000 * c + 170000 * p;
                    KXiSCSICHAPUserPortInfo port = new KXiSCSICHAPUserPortInfo();
                    port.port_valid = b.getInt(o);
                    port.security = b.getInt(o + 4);
                    port.user_max_count = b.getInt(o + 8);
                    port.user_count = b.getInt(o + 12);
                    port.user = new KXiSCSICHAPUserInfo[512];
                    for (int u = 0; u < 512; u++) {
                        int e = o + 16 + 332 * u;
                        KXiSCSICHAPUserInfo user = new KXiSCSICHAPUserInfo();
                        user.user_valid = b.getInt(e);
                        user.ctrl_flag = b.getInt(e + 4);
                        user.user_name = text(bytes, e + 8, 257);
                        user.secret = text(bytes, e + 265, 33);
                        System.arraycopy(bytes, e + 298, user.target_bitmap, 0, 32);
                        port.user[u] = user;
                    }
                    ctl.port[p] = port;
                }
                all.ctl[c] = ctl;
            }
            return all;
        }
    }

    /** 4096 LUs, 600 of them configured, a quarter of those write-protected with a retention term. */
    static final class LuGuardTable extends Case {
        LuGuardTable() {
            super("KX_GetLuGuardInformation", 2, 163848);
        }

        @Override
        protected void fillRecord(ByteBuffer b) {
            b.putInt(0, 1).putInt(4, 0);
            for (int i = 0; i < 600; i++) {
                int o = 8 + 40 * i;
                boolean guarded = i % 4 == 0;
                b.putInt(o, 1).putInt(o + 4, 2097152 * (1 + i % 8)).putInt(o + 8, 1).putInt(o + 12, guarded ? 2 : 0)
                    .putInt(o + 16, guarded ? 1 : 0).putInt(o + 20, 0).putInt(o + 24, 0).putInt(o + 28, 0x3)
                    .putInt(o + 32, 0x7).putInt(o + 36, guarded ? 365 * (1 + i % 5) : 0);
            }
        }

        @Override
        public Object callNative() {
            return JNI.KX_GetLuGuardInformation(UNIT, SESSION);
        }

        @Override
        public Object buildJni(boolean lax) {
            return planned(lax);
        }

        @Override
        public Object buildFloor() {
            ByteBuffer b = le();
            LuGuardInformation info = new LuGuardInformation();
            info.option = b.getInt(0);
            info.expirationlock = b.getInt(4);
            info.lu = new LuGuard[4096];
            for (int i = 0; i < 4096; i++) {
                int o = 8 + 40 * i;
                LuGuard g = new LuGuard();
                g.lu_valid = b.getInt(o);
                g.capacity = b.getInt(o + 4);
                g.access_level_valid = b.getInt(o + 8);
                g.access_level_status = b.getInt(o + 12);
                g.access_level = b.getInt(o + 16);
                g.svol_disable = b.getInt(o + 20);
                g.access_inhibit_mode = b.getInt(o + 24);
                g.access_attr = b.getInt(o + 28);
                g.changeable_attr = b.getInt(o + 32);
                g.retention_term = b.getInt(o + 36);
                info.lu[i] = g;
            }
            return info;
        }
    }
}
