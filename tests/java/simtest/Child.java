package simtest;

import java.util.Arrays;
import orvane.str.diskarray.CreateRaidGroup;
import orvane.str.diskarray.CreateRgDrive;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUnitParam;
import orvane.str.diskarray.LogicalUnit;
import orvane.str.diskarray.RaidGroupInformation;
import orvane.str.diskarray.RgDetail;

/**
 * The other JVM of the multi-process tests: it acts on the database its
 * environment names and says what it did, one line per fact, flushed at once
 * (the parent may kill it at any moment and checks every line it saw).
 *
 *   login                              SESSION hex
 *   lus FIRST COUNT RG BLOCKS          ACK lun per LU made (ERR lun code), DONE
 *   dump [LUN...]                      RG n level total rest / LU n rg blocks / SETTING ...
 *   make                               RG n / LU n: a RAID group and an LU made
 *   calls [--session HEX] NAME...      CODE name code per call
 */
public final class Child {
    private Child() {}

    public static void main(String[] args) throws Exception {
        switch (args[0]) {
            case "login":
                say("SESSION " + hex(Sim.admin().session_id));
                break;
            case "lus":
                lus(Integer.parseInt(args[1]), Integer.parseInt(args[2]), Integer.parseInt(args[3]),
                        Integer.parseInt(args[4]));
                break;
            case "dump":
                dump(Arrays.copyOfRange(args, 1, args.length));
                break;
            case "make":
                make();
                break;
            case "calls":
                calls(Arrays.copyOfRange(args, 1, args.length));
                break;
            default:
                throw new IllegalArgumentException(args[0]);
        }
        System.out.flush();
        System.exit(0);
    }

    private static void say(String line) {
        System.out.println(line);
        System.out.flush();
    }

    private static void lus(int first, int count, int rg, int blocks) throws Exception {
        KXSessionInfo s = Sim.admin();
        for (int i = 0; i < count; i++) {
            LogicalUnit lu = lu(first + i, rg, blocks);
            int code = Sim.codeOf(() -> Sim.JNI.KX_LogicalUnitAdd(Sim.UNIT, s, lu));
            say(code == 0 ? "ACK " + (first + i) : "ERR " + (first + i) + " " + code);
        }
        say("DONE");
    }

    static LogicalUnit lu(int number, int rg, int blocks) {
        LogicalUnit lu = new LogicalUnit();
        lu.luNumber = number;
        lu.rgNumber = rg;
        lu.capacity = blocks;
        lu.stripe = 256;
        lu.hostblock = 512;
        return lu;
    }

    /** The RAID groups, the LUs named, the drive restoration interval. */
    private static void dump(String[] luns) throws Exception {
        KXSessionInfo s = Sim.admin();
        RaidGroupInformation info = Sim.JNI.KX_GetRaidGroupInformation(Sim.UNIT, s);
        for (RgDetail g : info.rg) {
            if (g.valid_index != 0) {
                say("RG " + g.rgnum + " " + g.level + " " + Sim.wide(g.total_capa_h, g.total_capa_l) + " "
                        + Sim.wide(g.rest_capa_h, g.rest_capa_l));
            }
        }
        for (String n : luns) {
            LogicalUnit l = Sim.JNI.KX_GetLogicalUnit1(Sim.UNIT, s, Integer.parseInt(n));
            say("LU " + l.luNumber + " " + l.rgNumber + " " + l.capacity);
        }
        say("SETTING interval " + Sim.JNI.KX_GetDiskDriveRestoration(Sim.UNIT, s).interval);
        Sim.logout(s);
    }

    /** A RAID5 group of the first five free drives and a 1 GB LU in it. */
    private static void make() throws Exception {
        KXSessionInfo s = Sim.admin();
        CreateRaidGroup c = automatic(5, 5, 1);
        RgDetail plan = Sim.JNI.KX_GetRaidGroupCreationCapacity(Sim.UNIT, s, c);
        c.rgnum = plan.rgnum;
        Sim.JNI.KX_CreateRaidGroup(Sim.UNIT, s, c);
        say("RG " + plan.rgnum);
        LogicalUnit lu = lu(4000, plan.rgnum, 1953125);
        Sim.JNI.KX_LogicalUnitAdd(Sim.UNIT, s, lu);
        say("LU 4000");
        Sim.logout(s);
    }

    /** A RAID group of the first free drives (create mode 1), the lowest free number. */
    static CreateRaidGroup automatic(int level, int perGroup, int groups) {
        CreateRaidGroup c = new CreateRaidGroup();
        c.create_mode = 1;
        c.rgnum = -1;
        c.level = level;
        c.drive_type = -1;
        c.drive_capa = 0;
        c.parity_hdu_count = perGroup;
        c.parity_count = groups;
        c.rgdrv = new CreateRgDrive[0];
        return c;
    }

    private static void calls(String[] names) throws Exception {
        KXSessionInfo session = null;
        int at = 0;
        if (names.length > 1 && names[0].equals("--session")) {
            session = new KXSessionInfo();
            session.session_id = unhex(names[1]);
            at = 2;
        }
        final KXSessionInfo s = session;
        for (String name : Arrays.copyOfRange(names, at, names.length)) {
            Sim.Call call;
            switch (name) {
                case "count": call = () -> Sim.JNI.KX_GetUnitCount(); break;
                case "param": call = () -> Sim.JNI.KX_GetUnitParam(Sim.UNIT); break;
                case "table": call = () -> Sim.JNI.KX_GetUnitParamTable(4); break;
                case "login": call = () -> Sim.admin(); break;
                case "unit-add": call = () -> Sim.JNI.KX_UnitAdd(unit("CHILD")); break;
                case "unit-delete": call = () -> Sim.JNI.KX_UnitDelete(Sim.UNIT); break;
                case "rg-info": call = () -> Sim.JNI.KX_GetRaidGroupInformation(Sim.UNIT, s); break;
                case "rg-create": call = () -> Sim.JNI.KX_CreateRaidGroup(Sim.UNIT, s, automatic(5, 5, 1)); break;
                case "keep": call = () -> Sim.JNI.KX_KeepSession(Sim.UNIT, s); break;
                default: throw new IllegalArgumentException(name);
            }
            say("CODE " + name + " " + Sim.codeOf(call));
        }
    }

    static KXUnitParam unit(String name) {
        KXUnitParam p = new KXUnitParam();
        p.unit_name = name;
        p.group_name = "tests";
        p.connect_type = 1;
        p.kx_type = 1;
        p.device_type = 2;
        p.unit_conf = 1;
        p.alert = 0;
        p.ctl0 = "192.0.2.10";
        p.ctl1 = "192.0.2.11";
        p.serial = "93000001";
        return p;
    }

    static String hex(byte[] b) {
        StringBuilder sb = new StringBuilder();
        for (byte x : b) {
            sb.append(String.format("%02x", x & 0xff));
        }
        return sb.toString();
    }

    static byte[] unhex(String h) {
        byte[] b = new byte[h.length() / 2];
        for (int i = 0; i < b.length; i++) {
            b[i] = (byte) Integer.parseInt(h.substring(2 * i, 2 * i + 2), 16);
        }
        return b;
    }
}
