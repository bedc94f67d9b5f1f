import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.TreeMap;

import orvane.str.diskarray.AreaInfo;
import orvane.str.diskarray.CreateRaidGroup;
import orvane.str.diskarray.CreateRgDrive;
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
 * logical unit, read the audit log, log out.
 *
 * Run against the simulated array, every run leaves its RAID group and LU
 * behind, so the next run starts from there.  The unit and the account come
 * from the environment:
 *
 *   PERNIX_SIM_UNIT             unit name (default SIM01)
 *   PERNIX_SIM_IP0, _IP1        its controllers' addresses (192.0.2.10, 192.0.2.11)
 *   PERNIX_SIM_ADMIN_USER       account (default admin)
 *   PERNIX_SIM_ADMIN_PASSWORD   its password (default pernix-sim)
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
            System.out.println("Could not read the exported audit log: " + e.getMessage());
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
        if (group < 0) {
            System.out.println("No RAID group has room for another LU: nothing to make this time.");
        } else {
            heading("Logical unit");
            createLu(group);
        }

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

    private void createLu(int group) throws Exception {
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
        int shown = Math.min(8, rows.size());
        System.out.printf("%d entries; the last %d:%n", rows.size(), shown);
        for (String[] r : rows.subList(rows.size() - shown, rows.size())) {
            if (r.length < 7) {
                continue;
            }
            String result = r[6].equals("0") ? "done" : "refused, " + explain(Integer.parseInt(r[6]));
            System.out.printf("  %s  %-8s %-28s %-22s %s%n", r[1], r[3], r[4], r[5], result);
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
