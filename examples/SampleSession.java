import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.TreeMap;

import orvane.str.diskarray.AreaInfo;
import orvane.str.diskarray.CreateRaidGroup;
import orvane.str.diskarray.CreateRgDrive;
import orvane.str.diskarray.DMLUDetail;
import orvane.str.diskarray.DMLUInformation;
import orvane.str.diskarray.FibreInformation;
import orvane.str.diskarray.FibreInformationPort;
import orvane.str.diskarray.HGConfig;
import orvane.str.diskarray.HGInfo;
import orvane.str.diskarray.HGList;
import orvane.str.diskarray.HGOptionInfo;
import orvane.str.diskarray.LuMappingHGInfo;
import orvane.str.diskarray.MirrorLUInfo;
import orvane.str.diskarray.PairCreateTime;
import orvane.str.diskarray.PairInfo;
import orvane.str.diskarray.PairLUInfo;
import orvane.str.diskarray.StatisticalCommand;
import orvane.str.diskarray.DiskArrayException;
import orvane.str.diskarray.DiskArrayUtilityJNI;
import orvane.str.diskarray.DiskDrive;
import orvane.str.diskarray.DiskDriveInformation;
import orvane.str.diskarray.KXAccountLogin;
import orvane.str.diskarray.KXAccountLogout;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUnitParam;
import orvane.str.diskarray.LogicalUnit;
import orvane.str.diskarray.OwnUserPermission;
import orvane.str.diskarray.RGAreaInformation;
import orvane.str.diskarray.RaidGroupInformation;
import orvane.str.diskarray.RgDetail;
import orvane.str.diskarray.UnitCondition;

/**
 * A first session with a disk array through DiskArrayUtilityJNI: register the
 * unit, log in, look at its condition and drives, make a RAID group and a
 * logical unit, give hosts a host group that maps the LU, look at the ports,
 * measure the LUs' I/O into a CSV file, copy the LU onto another with a local
 * copy pair up to its split, read the audit log, log out.
 *
 * Run against the simulated array, every run leaves its RAID group, LUs,
 * mapping and pair behind, so the next run starts from there.  Hosts make and
 * split copy pairs, and the sample cannot wait for copies and I/O in real
 * time: the simulator's tool (PERNIX_SIM_TOOL, set by scripts/sample.sh)
 * stands in for the host and moves the simulator's clock on.  The unit and
 * the account come from the environment:
 *
 *   PERNIX_SIM_UNIT             unit name (default SIM01)
 *   PERNIX_SIM_IP0, _IP1        its controllers' addresses (192.0.2.10, 192.0.2.11)
 *   PERNIX_SIM_ADMIN_USER       account (default admin)
 *   PERNIX_SIM_ADMIN_PASSWORD   its password (default pernix-sim)
 *   PERNIX_SIM_TOOL             the pernix-sim tool (the host and the clock)
 *   PERNIX_SIM_PERF_DIR         where the CSV goes (default perf/ beside the database)
 */
public final class SampleSession {
    /** RAID5 of four data drives and one parity drive. */
    private static final int LEVEL = 5;
    private static final int DRIVES_PER_GROUP = 5;
    /** The LU each run makes: 100 GB in blocks of 512 bytes. */
    private static final long LU_BYTES = 100_000_000_000L;
    private static final int BLOCK = 512;

    private final DiskArrayUtilityJNI array = new DiskArrayUtilityJNI();
    private final String unit = env("PERNIX_SIM_UNIT", "SIM01");
    private final String user = env("PERNIX_SIM_ADMIN_USER", "admin");
    private final String password = env("PERNIX_SIM_ADMIN_PASSWORD", "pernix-sim");
    private KXSessionInfo session;

    public static void main(String[] args) {
        long start = System.nanoTime();
        SampleSession s = new SampleSession();
        int status = 0;
        try {
            s.run();
        } catch (DiskArrayException e) {
            // Every native reports the array's refusals this way (undeclared).
            System.out.println();
            System.out.println("The array refused: " + explain(e.getCode()));
            status = 1;
        } catch (IOException e) {
            System.out.println();
            System.out.println("A file or the simulator's tool failed: " + e.getMessage());
            status = 1;
        } catch (Exception e) {
            System.out.println();
            System.out.println("Failed: " + e);
            status = 1;
        } finally {
            s.logout();
        }
        System.out.printf(Locale.ROOT, "%nSession time: %.0f ms (without the JVM's start)%n",
                (System.nanoTime() - start) / 1e6);
        System.exit(status);
    }

    private void run() throws Exception {
        heading("Unit");
        register();

        heading("Login");
        KXAccountLogin login = new KXAccountLogin();
        login.user_id = user;
        login.passwd = password;
        login.log_option = 0;
        login.log_string = "SampleSession";
        session = array.KX_LoginKXAccount(unit, login);
        OwnUserPermission me = array.KX_GetOwnUserPermission(unit, session);
        System.out.printf("Logged in to %s as %s (role %d, %d of 9 rights)%n", unit, user, me.role,
                countRights(me.operation_auth));

        List<String[]> earlierAudit = exportAuditLog();

        heading("Condition");
        showCondition(array.KX_GetUnitCondition(unit, session, 0));

        heading("Drives");
        DiskDrive[] drives = array.KX_GetDriveStatus(unit, session);
        showDrives(drives, array.KX_GetDriveInformationAll(unit, session));

        heading("RAID groups");
        RaidGroupInformation before = array.KX_GetRaidGroupInformation(unit, session);
        int madeEarlier = countSuccesses(earlierAudit, "KX_CreateRaidGroup");
        System.out.printf("RAID groups: %d (%s)%n", before.rg_count,
                madeEarlier == 0 ? "none made by an earlier session"
                        : madeEarlier == 1 ? "one made by an earlier session"
                        : madeEarlier + " made by earlier sessions");
        showGroups(before);

        int group = createGroup(drives, before);
        if (group < 0) {
            group = groupWithRoom(before);
        }
        int made = -1;
        if (group < 0) {
            System.out.println("No RAID group has room for another LU: nothing to make this time.");
        } else {
            heading("Logical unit");
            made = createLu(group);
        }

        heading("Host group");
        int hostGroup = hostGroup();

        heading("LU mapping");
        mapLu(hostGroup, made);

        heading("Ports");
        showPorts();

        heading("Performance");
        collectPerformance(hostGroup);

        heading("Copy pair");
        copyPair(made);

        heading("Audit log");
        showAudit(exportAuditLog());
    }

    // ---- unit registration

    private void register() throws Exception {
        try {
            KXUnitParam p = array.KX_GetUnitParam(unit);
            System.out.printf("%s is registered (controllers %s and %s, serial %s)%n", p.unit_name, p.ctl0,
                    p.ctl1, p.serial);
            return;
        } catch (Exception e) {
            // The natives throw DiskArrayException without declaring it.
            if (!(e instanceof DiskArrayException) || ((DiskArrayException) e).getCode() != 12289) {
                throw e;
            }
        }
        KXUnitParam p = new KXUnitParam();
        p.unit_name = unit;
        p.group_name = "samples";
        p.connect_type = 1;
        p.ctl0 = env("PERNIX_SIM_IP0", "192.0.2.10");
        p.ctl1 = env("PERNIX_SIM_IP1", "192.0.2.11");
        p.serial = "";
        // Registration by address asks the controllers for the unit's serial
        // number and type.
        array.KX_UnitAddByIP(p);
        KXUnitParam now = array.KX_GetUnitParam(unit);
        System.out.printf("Registered %s (controllers %s and %s, serial %s)%n", now.unit_name, now.ctl0, now.ctl1,
                now.serial);
    }

    // ---- condition and drives

    private static void showCondition(UnitCondition c) {
        System.out.printf("Microcode %s, serial %s, %d controllers (%s, %s)%n", c.micro, c.serial, c.ctl_num,
                c.ctl0_ip, c.ctl1_ip);
        System.out.printf("Controllers: %s%n", condition(c.controller_condition));
        int enclosures = 0, alarms = 0;
        for (int e : c.enclosure) {
            if (e != 0) {
                enclosures++;
            }
            if (e == 2) {
                alarms++;
            }
        }
        System.out.printf("Enclosures: %d, %s%n", enclosures,
                alarms == 0 ? "all normal" : alarms + " with an alarm");
        System.out.printf("Cache: controller 0 %s, controller 1 %s%n", condition(c.cache[0].condition),
                condition(c.cache[1].condition));
    }

    private static String condition(int code) {
        switch (code) {
            case 0: return "absent";
            case 1: return "normal";
            case 2: return "alarm";
            default: return "code " + code;
        }
    }

    private static void showDrives(DiskDrive[] drives, DiskDriveInformation[] info) {
        Map<Integer, int[]> perEnclosure = new TreeMap<>();
        int mounted = 0, used = 0, free = 0, trouble = 0;
        DiskDriveInformation sample = null;
        for (int i = 0; i < drives.length; i++) {
            DiskDrive d = drives[i];
            if (d == null || d.mount == 0) {
                continue;
            }
            mounted++;
            int[] counts = perEnclosure.computeIfAbsent(d.port_no, k -> new int[3]);
            counts[0]++;
            if (d.attribute != 0) {
                used++;
                counts[1]++;
            } else if (d.drv_state == 0) {
                free++;
                counts[2]++;
            }
            if (d.drv_state == 1 || d.drv_state == 2) {
                trouble++;
            }
            if (sample == null && info[i] != null) {
                sample = info[i];
            }
        }
        System.out.printf("Drives: %d mounted, %d in RAID groups, %d free, %d offline or failed%n", mounted, used,
                free, trouble);
        for (Map.Entry<Integer, int[]> e : perEnclosure.entrySet()) {
            int[] c = e.getValue();
            System.out.printf("  enclosure %d: %2d drives, %2d in RAID groups, %2d free%n", e.getKey(), c[0], c[1],
                    c[2]);
        }
        if (sample != null) {
            System.out.printf("  e.g. %s %s rev %s, %s, serial %s%n", sample.vendor, sample.product,
                    sample.revision, sample.drive_capacity, sample.serial);
        }
    }

    // ---- RAID groups

    private static void showGroups(RaidGroupInformation info) {
        for (RgDetail g : info.rg) {
            if (g != null && g.valid_index != 0) {
                System.out.printf("  RAID group %2d: RAID%d, %d x %d drives from %d/%d, %s, %s free%n", g.rgnum,
                        g.level, g.parity_count, g.parity_hdu_count, g.start_unit_no, g.start_hdu_no,
                        size(wide(g.total_capa_h, g.total_capa_l)), size(wide(g.rest_capa_h, g.rest_capa_l)));
            }
        }
    }

    /** Makes a RAID5 group of the first free drives; -1 when too few are free. */
    private int createGroup(DiskDrive[] drives, RaidGroupInformation before) throws Exception {
        List<CreateRgDrive> chosen = new ArrayList<>();
        int free = 0;
        for (DiskDrive d : drives) {
            if (d != null && d.mount != 0 && d.attribute == 0 && d.drv_state == 0) {
                free++;
                if (chosen.size() < DRIVES_PER_GROUP) {
                    CreateRgDrive c = new CreateRgDrive();
                    c.unit_no = d.port_no;
                    c.hdu_no = d.row_no;
                    chosen.add(c);
                }
            }
        }
        if (chosen.size() < DRIVES_PER_GROUP) {
            System.out.printf("Only %d free drives left: not enough for another RAID%d group of %d.%n", free, LEVEL,
                    DRIVES_PER_GROUP);
            return -1;
        }
        CreateRaidGroup create = new CreateRaidGroup();
        create.create_mode = 0;  // the drives named below
        create.rgnum = -1;       // the lowest free number
        create.level = LEVEL;
        create.drive_type = -1;
        create.drive_capa = 0;
        create.parity_hdu_count = DRIVES_PER_GROUP;
        create.parity_count = 1;
        create.rgdrv = chosen.toArray(new CreateRgDrive[0]);

        RgDetail plan = array.KX_GetRaidGroupCreationCapacity(unit, session, create);
        StringBuilder names = new StringBuilder();
        for (CreateRgDrive c : chosen) {
            names.append(names.length() == 0 ? "" : " ").append(c.unit_no).append('/').append(c.hdu_no);
        }
        System.out.printf("Making RAID group %d: RAID%d of drives %s, %s%n", plan.rgnum, LEVEL, names,
                size(wide(plan.total_capa_h, plan.total_capa_l)));
        array.KX_CreateRaidGroup(unit, session, create);

        RaidGroupInformation after = array.KX_GetRaidGroupInformation(unit, session);
        System.out.printf("RAID groups now: %d%n", after.rg_count);
        for (RgDetail g : after.rg) {
            if (g != null && g.valid_index != 0 && g.rgnum == plan.rgnum) {
                System.out.printf("  RAID group %2d: RAID%d, %s, %s free%n", g.rgnum, g.level,
                        size(wide(g.total_capa_h, g.total_capa_l)), size(wide(g.rest_capa_h, g.rest_capa_l)));
            }
        }
        return plan.rgnum;
    }

    /** A group whose largest free area holds the LU; -1 when none does. */
    private int groupWithRoom(RaidGroupInformation info) throws Exception {
        for (RgDetail g : info.rg) {
            if (g != null && g.valid_index != 0 && wide(g.rest_capa_h, g.rest_capa_l) >= LU_BYTES / BLOCK) {
                RGAreaInformation areas = array.KX_GetRGAreaInformation(unit, session, g.rgnum);
                if (areas.lumaxcapa >= LU_BYTES / BLOCK) {
                    System.out.printf("The LU goes into RAID group %d instead (%s free in one piece).%n", g.rgnum,
                            size(areas.lumaxcapa));
                    return g.rgnum;
                }
            }
        }
        return -1;
    }

    // ---- logical units

    /** Makes the run's LU in the group and shows where it lies; its number. */
    private int createLu(int group) throws Exception {
        // The LU list has a slot for every LU number the unit can hold; the
        // first slot not in use gives the new LU its number.
        LogicalUnit[] all = array.KX_GetLogicalUnit(unit, session);
        int count = 0, number = -1;
        for (LogicalUnit l : all) {
            if (l != null && l.lu_valid != 0) {
                count++;
            } else if (l != null && number < 0) {
                number = l.luNumber;
            }
        }
        LogicalUnit lu = new LogicalUnit();
        lu.luNumber = number;
        lu.rgNumber = group;
        lu.capacity = (int) (LU_BYTES / BLOCK);
        lu.stripe = 256;
        lu.hostblock = BLOCK;
        lu.defaultCTL = 0;
        array.KX_LogicalUnitAdd(unit, session, lu);

        // The group's areas, in address order: its LUs and the free space
        // between and after them.
        RGAreaInformation areas = array.KX_GetRGAreaInformation(unit, session, group);
        System.out.printf("RAID group %d holds:%n", group);
        for (int i = 0; i < areas.area_count; i++) {
            AreaInfo a = areas.area[i];
            long blocks = wide(a.area_capa_h, a.area_capa_l);
            if (a.areakind == 0) {
                System.out.printf("  free       %s%n", size(blocks));
            } else {
                System.out.printf("  LU %-6d  %s%s%n", a.lun, size(blocks), a.lun == number ? "  (new)" : "");
            }
        }
        LogicalUnit made = array.KX_GetLogicalUnit1(unit, session, number);
        System.out.printf("Made LU %d: %s in RAID group %d (RAID%d), controller %d, stripe %d KB, %s%n",
                made.luNumber, size(made.capacity), made.rgNumber, made.raid_level, made.defaultCTL, made.stripe,
                luStatus(made.status));
        System.out.printf("LUs on the unit: %d%n", count + 1);
        return number;
    }

    /** Makes an LU of the sample's size in the first group with room, quietly; -1 when none has room. */
    private int addLu() throws Exception {
        int group = -1;
        for (RgDetail g : array.KX_GetRaidGroupInformation(unit, session).rg) {
            if (g != null && g.valid_index != 0 && wide(g.rest_capa_h, g.rest_capa_l) >= LU_BYTES / BLOCK
                    && array.KX_GetRGAreaInformation(unit, session, g.rgnum).lumaxcapa >= LU_BYTES / BLOCK) {
                group = g.rgnum;
                break;
            }
        }
        if (group < 0) {
            return -1;
        }
        int number = -1;
        for (LogicalUnit l : array.KX_GetLogicalUnit(unit, session)) {
            if (l != null && l.lu_valid == 0) {
                number = l.luNumber;
                break;
            }
        }
        LogicalUnit lu = new LogicalUnit();
        lu.luNumber = number;
        lu.rgNumber = group;
        lu.capacity = (int) (LU_BYTES / BLOCK);
        lu.stripe = 256;
        lu.hostblock = BLOCK;
        lu.defaultCTL = 0;
        array.KX_LogicalUnitAdd(unit, session, lu);
        return number;
    }

    // ---- host group and LU mapping

    /** Port 0A: controller 0, port 0, where the sample's hosts are cabled. */
    private static final int CTL = 0, PORT = 0;
    private static final String HOST_GROUP = "sample-hosts";

    /** The sample's host group on port 0A, made by the first session; its number. */
    private int hostGroup() throws Exception {
        int number = findGroup(array.KX_GetHGList(unit, session));
        if (number >= 0) {
            System.out.printf("Host group %d \"%s\" on port 0A was made by an earlier session.%n", number, HOST_GROUP);
        } else {
            HGConfig config = new HGConfig();
            config.hgname = HOST_GROUP;
            array.KX_CreateHG(unit, session, CTL, PORT, -1, config);  // -1: the lowest free number
            number = findGroup(array.KX_GetHGList(unit, session));
            // The hosts are Linux servers with native multipathing.
            HGOptionInfo o = array.KX_GetHGOption(unit, session, CTL, PORT, number);
            o.platform_id = 1;
            o.alternate_path_id = 1;
            array.KX_SetHGOption(unit, session, CTL, PORT, number, o);
            System.out.printf("Made host group %d \"%s\" on port 0A.%n", number, HOST_GROUP);
        }
        HGOptionInfo o = array.KX_GetHGOption(unit, session, CTL, PORT, number);
        System.out.printf("Its hosts: platform %s, alternate path %s%n",
                o.platform_id == 1 ? "Linux" : "id " + o.platform_id,
                o.alternate_path_id == 1 ? "native multipath" : "id " + o.alternate_path_id);
        return number;
    }

    private static int findGroup(HGList list) {
        HGInfo[] groups = list.ctl[CTL].port[PORT].hg;
        for (int i = 0; i < groups.length; i++) {
            if (groups[i] != null && groups[i].valid != 0 && HOST_GROUP.equals(groups[i].hgname)) {
                return i;
            }
        }
        return -1;
    }

    /** Maps the run's LU at the group's first free host LU number; shows the group's table. */
    private void mapLu(int hostGroup, int lu) throws Exception {
        LuMappingHGInfo now = mapping(hostGroup);
        if (lu >= 0) {
            int free = 0;
            while (free < now.lu.length && now.lu[free] != -1) {
                free++;
            }
            if (free == now.lu.length) {
                System.out.printf("Host group %d maps every host LU already: LU %d stays unmapped.%n", hostGroup, lu);
            } else {
                LuMappingHGInfo add = new LuMappingHGInfo();
                Arrays.fill(add.lu, -1);
                add.lu[free] = lu;
                array.KX_SetLuMappingList(unit, session, CTL, PORT, hostGroup, 1, add);  // 1: add to the table
                System.out.printf("Mapped LU %d as host LU %d.%n", lu, free);
                now = mapping(hostGroup);
            }
        }
        System.out.printf("Host group %d on port 0A maps:%n", hostGroup);
        for (int h = 0; h < now.lu.length; h++) {
            if (now.lu[h] >= 0) {
                System.out.printf("  host LU %3d -> LU %d%s%n", h, now.lu[h], now.lu[h] == lu ? "  (new)" : "");
            }
        }
    }

    private LuMappingHGInfo mapping(int hostGroup) throws Exception {
        Object[] r = array.KX_GetLuMappingList(unit, session, CTL, PORT, hostGroup);
        return (LuMappingHGInfo) r[1];
    }

    private void showPorts() throws Exception {
        FibreInformation[] ctls = array.KX_GetFibreInformation(unit, session);
        HGList groups = array.KX_GetHGList(unit, session);
        for (int c = 0; c < ctls.length; c++) {
            FibreInformation f = ctls[c];
            for (int p = 0; p < f.port.length; p++) {
                if ((f.port_valid >> p & 1) == 0) {
                    continue;
                }
                FibreInformationPort port = f.port[p];
                int made = 0;
                for (HGInfo g : groups.ctl[c].port[p].hg) {
                    made += g != null && g.valid != 0 ? 1 : 0;
                }
                System.out.printf("  port %d%c  %s  %s  %-14s %d host group%s%n", c, (char) ('A' + p),
                        port.port_name, f.topology_ref[p] == 0 ? "link down" : "link up  ",
                        port.refer_speed == 0 ? "" : port.refer_speed + " Gbit/s", made, made == 1 ? "" : "s");
            }
        }
    }

    // ---- performance

    /**
     * Reads every LU's counters twice, five minutes of the hosts' I/O apart,
     * and has the array write the summary CSV of the interval.
     */
    private void collectPerformance(int hostGroup) throws Exception {
        StatisticalCommand[] before = array.KX_GetPerformance(unit, session);
        if (!advance(300, "five minutes of the hosts' I/O")) {
            System.out.println("(no pernix-sim tool: the two readings are moments apart)");
        }
        StatisticalCommand[] after = array.KX_GetPerformance(unit, session);
        Path dir = perfDir();
        Files.createDirectories(dir);
        array.KX_PerformanceOutput(unit, session, dir.toString(), before[0], after[0], before[1], after[1]);
        Path csv = dir.resolve("summary.csv");
        List<String> lines = Files.readAllLines(csv, StandardCharsets.UTF_8);
        System.out.printf("Wrote %s: %d LUs over %s s%n", csv, lines.size() - 1,
                lines.size() > 1 ? splitCsv(lines.get(1))[4] : "0");
        // ctl,lu,from,to,seconds,read_count,write_count,read_cache,write_cache,read_iops,write_iops,read_hit,write_hit
        List<Integer> mapped = new ArrayList<>();
        for (int l : mapping(hostGroup).lu) {
            if (l >= 0) {
                mapped.add(l);
            }
        }
        System.out.println("The LUs the sample's hosts use:");
        for (int i = 1; i < lines.size(); i++) {
            String[] r = splitCsv(lines.get(i));
            if (r.length >= 13 && mapped.contains(Integer.parseInt(r[1]))) {
                System.out.printf("  LU %-5s controller %s: %8s reads/s %8s writes/s, hits %s%% / %s%%%n", r[1], r[0],
                        r[9], r[10], r[11], r[12]);
            }
        }
    }

    /** Where the simulator keeps performance files: PERNIX_SIM_PERF_DIR, else perf/ beside the database. */
    private static Path perfDir() {
        String dir = System.getenv("PERNIX_SIM_PERF_DIR");
        if (dir != null && !dir.isEmpty()) {
            return Paths.get(dir);
        }
        String db = System.getenv("PERNIX_SIM_DB");
        if (db != null && !db.isEmpty()) {
            Path parent = Paths.get(db).toAbsolutePath().getParent();
            return parent.resolve("perf");
        }
        String state = System.getenv("XDG_STATE_HOME");
        Path base = state != null && !state.isEmpty() ? Paths.get(state)
                : Paths.get(System.getProperty("user.home"), ".local", "state");
        return base.resolve("pernix-sim").resolve("perf");
    }

    // ---- copy pair

    /**
     * Copies the run's LU onto a second LU of the same size: a local mirror.
     * Hosts make and split pairs through a command device, not through this
     * library; the simulator's tool stands in for that host here.
     */
    private void copyPair(int primary) throws Exception {
        if (primary < 0) {
            showPairs(-1);
            return;
        }
        if (tool() == null) {
            System.out.println("No pernix-sim tool (PERNIX_SIM_TOOL): no host to make a pair this time.");
            showPairs(-1);
            return;
        }
        int dmlu = dmlu(primary);
        if (dmlu < 0) {
            System.out.println("No LU can be the DMLU: no pair this time.");
            return;
        }
        int secondary = addLu();
        if (secondary < 0) {
            System.out.println("No RAID group has room for the copy's LU: no pair this time.");
            showPairs(-1);
            return;
        }
        System.out.printf("Made LU %d (%s) for the copy.%n", secondary, size(LU_BYTES / BLOCK));
        System.out.printf("A host asks for the pair (pernix-sim pair create mirror %d %d): %s%n", primary, secondary,
                tool("pair", "create", "mirror", String.valueOf(primary), String.valueOf(secondary)));
        // 100 GB copy in about four minutes; the clock moves on two minutes at a time.
        for (int step = 0; step < 5; step++) {
            MirrorLUInfo m = mirror(secondary);
            System.out.printf("  LU %d -> LU %d: %-5s %3d%% copied%n", primary, secondary, pairStatus(m.pair_status),
                    100 - m.changed_rate);
            if (m.pair_status != 1) {
                break;
            }
            advance(125, "the copy goes on");
        }
        System.out.printf("The host splits it (pernix-sim pair split mirror %d): %s%n", secondary,
                tool("pair", "split", "mirror", String.valueOf(secondary)));
        showPairs(secondary);
    }

    /** The DMLU pairs need: the one set, else the smallest LU that takes the role; -1 when none does. */
    private int dmlu(int primary) throws Exception {
        DMLUInformation d = array.KX_GetDMLU(unit, session);
        for (DMLUDetail x : d.dmlu) {
            if (x != null && x.dmlu_valid != 0) {
                System.out.printf("DMLU: LU %d (set by an earlier session)%n", x.dmlu_lu);
                return x.dmlu_lu;
            }
        }
        List<LogicalUnit> spare = new ArrayList<>();
        for (LogicalUnit l : array.KX_GetLogicalUnit(unit, session)) {
            if (l != null && l.lu_valid != 0 && l.luNumber != primary) {
                spare.add(l);
            }
        }
        spare.sort((a, b) -> Long.compare(a.capacity & 0xffffffffL, b.capacity & 0xffffffffL));
        for (LogicalUnit l : spare) {
            d.dmlu_count = 1;
            d.dmlu[0].dmlu_valid = 1;
            d.dmlu[0].set_valid = 1;
            d.dmlu[0].dmlu_lu = l.luNumber;
            try {
                array.KX_SetDMLU(unit, session, d);
                System.out.printf("DMLU: LU %d (%s), set now%n", l.luNumber, size(l.capacity & 0xffffffffL));
                return l.luNumber;
            } catch (Exception e) {
                // An LU with another role answers 12296: try the next.
                if (!(e instanceof DiskArrayException) || ((DiskArrayException) e).getCode() != 12296) {
                    throw e;
                }
            }
        }
        return -1;
    }

    private MirrorLUInfo mirror(int secondary) throws Exception {
        PairInfo info = array.KX_GetPairInformation(unit, session);
        for (int i = 0; i < info.pair_count; i++) {
            PairLUInfo p = info.lu[i];
            for (int k = 0; k < p.mirror_count; k++) {
                if (p.m_info[k].lun == secondary) {
                    return p.m_info[k];
                }
            }
        }
        throw new IllegalStateException("the array lists no pair with LU " + secondary);
    }

    private void showPairs(int fresh) throws Exception {
        PairInfo info = array.KX_GetPairInformation(unit, session);
        int n = 0;
        for (int i = 0; i < info.pair_count; i++) {
            n += info.lu[i].mirror_count;
        }
        System.out.printf("Local copy pairs on the unit: %d%n", n);
        for (int i = 0; i < info.pair_count; i++) {
            PairLUInfo p = info.lu[i];
            for (int k = 0; k < p.mirror_count; k++) {
                MirrorLUInfo m = p.m_info[k];
                PairCreateTime t = m.time;
                System.out.printf(Locale.ROOT, "  LU %-5d -> LU %-5d %-5s made %04d-%02d-%02d %02d:%02d:%02d UTC%s%n",
                        p.lun, m.lun, pairStatus(m.pair_status), t.year, t.month, t.day, t.hour, t.minute, t.second,
                        m.lun == fresh ? "  (new)" : "");
            }
        }
    }

    private static String pairStatus(int status) {
        switch (status) {
            case 1: return "copy";
            case 2: return "pair";
            case 3: return "split";
            default: return "status " + status;
        }
    }

    // ---- the simulator's tool

    /** pernix-sim, which stands in for the hosts and for time passing: PERNIX_SIM_TOOL; null when not there. */
    private static String tool() {
        String t = System.getProperty("pernix.sim.tool", System.getenv("PERNIX_SIM_TOOL"));
        return t != null && !t.isEmpty() && Files.isExecutable(Paths.get(t)) ? t : null;
    }

    /** Runs the tool on the same database; what it printed. */
    private static String tool(String... args) throws IOException, InterruptedException {
        List<String> cmd = new ArrayList<>();
        cmd.add(tool());
        cmd.addAll(Arrays.asList(args));
        Process p = new ProcessBuilder(cmd).redirectErrorStream(true).start();
        String out = new String(p.getInputStream().readAllBytes(), StandardCharsets.UTF_8).trim();
        if (p.waitFor() != 0) {
            throw new IOException("pernix-sim " + String.join(" ", args) + ": " + out);
        }
        return out;
    }

    /** Moves the simulator's clock on (the time a real session would wait); false without the tool. */
    private static boolean advance(int seconds, String what) throws Exception {
        if (tool() == null) {
            return false;
        }
        tool("clock", "+" + seconds);
        System.out.printf("  (the simulator's clock moves on %d s: %s)%n", seconds, what);
        return true;
    }

    private static String luStatus(int status) {
        switch (status) {
            case 0: return "formatted";
            case 1: return "formatting";
            case 2: return "not formatted yet";
            case 3: return "invalid";
            default: return "status " + status;
        }
    }

    // ---- audit log

    /** The audit log as the array exports it: CSV rows after a header line. */
    private List<String[]> exportAuditLog() throws Exception {
        Path file = Files.createTempFile("audit", ".csv");
        try {
            array.KX_KXAuditLogExport(unit, session, file.toString());
            List<String[]> rows = new ArrayList<>();
            List<String> lines = Files.readAllLines(file, StandardCharsets.UTF_8);
            for (int i = 1; i < lines.size(); i++) {
                rows.add(splitCsv(lines.get(i)));
            }
            return rows;
        } finally {
            Files.deleteIfExists(file);
        }
    }

    private static void showAudit(List<String[]> rows) {
        int shown = Math.min(16, rows.size());
        System.out.printf("%d entries; the last %d:%n", rows.size(), shown);
        for (String[] r : rows.subList(rows.size() - shown, rows.size())) {
            if (r.length < 7) {
                continue;
            }
            String result = r[6].equals("0") ? "done" : "refused, " + explain(Integer.parseInt(r[6]));
            System.out.printf("  %s  %-8s %-28s %-30s %s%n", r[1], r[3], r[4], r[5], result);
        }
    }

    private static int countSuccesses(List<String[]> rows, String function) {
        int n = 0;
        for (String[] r : rows) {
            if (r.length >= 7 && r[4].equals(function) && r[6].equals("0")) {
                n++;
            }
        }
        return n;
    }

    private static String[] splitCsv(String line) {
        List<String> out = new ArrayList<>();
        StringBuilder cur = new StringBuilder();
        boolean quoted = false;
        for (int i = 0; i < line.length(); i++) {
            char ch = line.charAt(i);
            if (quoted) {
                if (ch == '"' && i + 1 < line.length() && line.charAt(i + 1) == '"') {
                    cur.append('"');
                    i++;
                } else if (ch == '"') {
                    quoted = false;
                } else {
                    cur.append(ch);
                }
            } else if (ch == '"') {
                quoted = true;
            } else if (ch == ',') {
                out.add(cur.toString());
                cur.setLength(0);
            } else {
                cur.append(ch);
            }
        }
        out.add(cur.toString());
        return out.toArray(new String[0]);
    }

    // ---- logout

    private void logout() {
        if (session == null) {
            return;
        }
        heading("Logout");
        try {
            KXAccountLogout out = new KXAccountLogout();
            out.log_option = 0;
            array.KX_LogoutKXAccount(unit, session, out);
            System.out.println("Logged out.");
        } catch (Exception e) {
            System.out.println("Logout refused: "
                    + (e instanceof DiskArrayException ? explain(((DiskArrayException) e).getCode()) : e));
        }
        session = null;
    }

    // ---- helpers

    /** What a result code means, from the simulated array's table (sim/README.md). */
    static String explain(int code) {
        String what;
        switch (code) {
            case 258: what = "a required argument was null"; break;
            case 2817: what = "a Java object could not be converted"; break;
            case 65535: what = "out of memory"; break;
            case 12289: what = "no registered unit has that name"; break;
            case 12290: what = "not logged in (or the session was logged out)"; break;
            case 12291: what = "the session has expired"; break;
            case 12292: what = "an argument is out of range or malformed"; break;
            case 12293: what = "the object exists already"; break;
            case 12294: what = "no such object"; break;
            case 12295: what = "no room left (drives, capacity or table slots)"; break;
            case 12296: what = "the object is in use or busy"; break;
            case 12297: what = "the simulator's database failed"; break;
            case 12298: what = "the account's role does not allow this"; break;
            case 12299: what = "wrong user name or password, or the account is disabled"; break;
            case 12300: what = "the database stayed locked too long"; break;
            case 12301: what = "the database is read-only"; break;
            case 12302: what = "the file is not a sound simulator database"; break;
            case 12303: what = "the simulator does not model this function"; break;
            case 12304: what = "a file could not be read or written"; break;
            case 12305: what = "a file read is malformed"; break;
            case 12306: what = "no array answers at the unit's addresses"; break;
            case 12307: what = "the database's folder does not exist"; break;
            case 12308: what = "the account has no free session"; break;
            default: what = "unknown to this sample"; break;
        }
        return "code " + code + " (" + what + ")";
    }

    private static long wide(int high, int low) {
        return ((long) high << 32) | (low & 0xffffffffL);
    }

    /** A block count as decimal gigabytes or terabytes. */
    private static String size(long blocks) {
        double gb = blocks * (double) BLOCK / 1e9;
        return gb >= 1000 ? String.format(Locale.ROOT, "%.2f TB", gb / 1000)
                          : String.format(Locale.ROOT, "%.0f GB", gb);
    }

    private static int countRights(int[] rights) {
        int n = 0;
        for (int r : rights) {
            n += r != 0 ? 1 : 0;
        }
        return n;
    }

    private static void heading(String title) {
        System.out.println();
        System.out.println("== " + title);
    }

    private static String env(String name, String fallback) {
        String v = System.getenv(name);
        return v == null || v.isEmpty() ? fallback : v;
    }
}
