package simtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertTrue;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;
import static simtest.Sim.assertSameFields;
import static simtest.Sim.expect;

import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.time.LocalDateTime;
import java.time.ZoneOffset;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import org.junit.After;
import org.junit.AfterClass;
import org.junit.BeforeClass;
import org.junit.Test;
import org.junit.experimental.categories.Category;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXTime;
import orvane.str.diskarray.PerformanceAll;
import orvane.str.diskarray.PerformanceCSVInfo;
import orvane.str.diskarray.PerformanceCSVOutputOpt;
import orvane.str.diskarray.PerformanceCollectGraphInfo;
import orvane.str.diskarray.PerformanceMngInfo;
import orvane.str.diskarray.PerformanceOutputGraphInfo;
import orvane.str.diskarray.PerformanceTime;
import orvane.str.diskarray.StatisticalCommand;
import orvane.str.diskarray.StatisticalInformation;

/**
 * Statistics and performance through the bridge: counters rise with the
 * stepped clock and agree between the calls, the collection setting and the
 * management file read back, the CSV files are parsed and hold what the
 * calls returned, and damaged or missing files answer their codes.
 */
public class PerformanceTest {
    private static KXSessionInfo s;

    @BeforeClass
    public static void login() throws Exception {
        s = Sim.admin();
    }

    @AfterClass
    public static void logout() throws Exception {
        Sim.logout(s);
    }

    @After
    public void clearFaults() throws Exception {
        Sim.tool("faults", "clear");
    }

    /** RFC 4180 CSV: rows of fields, each row as wide as the header. */
    static List<String[]> csv(Path file) throws Exception {
        List<String> lines = Files.readAllLines(file, StandardCharsets.UTF_8);
        assertTrue(file + " is empty", !lines.isEmpty());
        List<String[]> rows = new ArrayList<>();
        for (String line : lines) {
            List<String> out = new ArrayList<>();
            StringBuilder cur = new StringBuilder();
            boolean quoted = false;
            for (int i = 0; i < line.length(); i++) {
                char c = line.charAt(i);
                if (quoted && c == '"' && i + 1 < line.length() && line.charAt(i + 1) == '"') {
                    cur.append('"');
                    i++;
                } else if (c == '"') {
                    quoted = !quoted;
                } else if (c == ',' && !quoted) {
                    out.add(cur.toString());
                    cur.setLength(0);
                } else {
                    cur.append(c);
                }
            }
            assertTrue(file + ": unterminated quote in " + line, !quoted);
            out.add(cur.toString());
            rows.add(out.toArray(new String[0]));
        }
        for (String[] r : rows) {
            assertEquals(file + ": row width", rows.get(0).length, r.length);
        }
        return rows;
    }

    /** A collection time (UTC, broken down as by gmtime) in seconds. */
    static long seconds(KXTime t) {
        return LocalDateTime.of(t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec)
                .toEpochSecond(ZoneOffset.UTC);
    }

    private static long u(int v) {
        return v & 0xffffffffL;
    }

    @Test
    @Category(Smoke.class)
    public void countersRiseWithTheClockAndTheSummaryCsvHoldsTheDifference() throws Exception {
        StatisticalCommand[] before = JNI.KX_GetPerformance(UNIT, s);
        Sim.clock(120);
        // The clock runs on in real time: the statistics and the counters are
        // compared when both were read within one second of the clock.
        StatisticalCommand[] after = null;
        StatisticalInformation st = null;
        for (int tries = 0; tries < 5; tries++) {
            after = JNI.KX_GetPerformance(UNIT, s);
            st = JNI.KX_GetStatisticalInformation(UNIT, s, 0);
            if (seconds(after[0].mtime) == seconds(JNI.KX_GetPerformance(UNIT, s)[0].mtime)) {
                break;
            }
        }
        long interval = seconds(after[0].mtime) - seconds(before[0].mtime);
        assertTrue("interval " + interval, interval >= 120 && interval <= 125);
        assertEquals(0, st.unite_option);
        Path dir = Sim.dir().resolve("summary");
        Files.createDirectories(dir);
        JNI.KX_PerformanceOutput(UNIT, s, dir.toString(), before[0], after[0], before[1], after[1]);

        List<String[]> rows = csv(dir.resolve("summary.csv"));
        assertEquals("ctl", rows.get(0)[0]);
        assertEquals("read_count", rows.get(0)[5]);
        assertEquals("one line per LU of the default array", 1 + 8, rows.size());
        for (String[] r : rows.subList(1, rows.size())) {
            int ctl = Integer.parseInt(r[0]), lu = Integer.parseInt(r[1]);
            long reads = u(after[ctl].lu[lu].read_count) - u(before[ctl].lu[lu].read_count);
            assertTrue("LU " + lu + " read nothing in two minutes", reads > 0);
            assertEquals("LU " + lu + " seconds", String.valueOf(interval), r[4]);
            assertEquals("LU " + lu + " reads", String.valueOf(reads), r[5]);
            // The statistics read at the later instant count the same reads.
            assertEquals("LU " + lu + " in the statistics", after[ctl].lu[lu].read_count,
                    st.h_command[ctl].lu[lu].read_count);
        }
        StatisticalCommand[] later = after;
        expect(12304, () -> JNI.KX_PerformanceOutput(UNIT, s, dir.resolve("missing").toString(), before[0],
                later[0], before[1], later[1]));
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_GetStatisticalInformation(UNIT, s, 2));
    }

    @Test
    public void collectionSettingReadsBack() throws Exception {
        assertEquals(7, JNI.KX_GetPfmStatisCfg(UNIT, s));
        JNI.KX_SetPfmStatisCfg(UNIT, s, 5);
        assertEquals(5, JNI.KX_GetPfmStatisCfg(UNIT, s));
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_SetPfmStatisCfg(UNIT, s, 8));
        assertEquals(5, JNI.KX_GetPfmStatisCfg(UNIT, s));
        PerformanceAll[] light = JNI.KX_GetPerformanceAll(UNIT, s, 0);
        assertEquals("LU extras not collected", 0, light[0].lu_ex[0].valid);
        JNI.KX_SetPfmStatisCfg(UNIT, s, 7);
    }

    private static PerformanceTime time(int y, int mo, int d, int h) {
        PerformanceTime t = new PerformanceTime();
        t.year = y;
        t.month = mo;
        t.day = d;
        t.hour = h;
        return t;
    }

    private static PerformanceMngInfo mng() {
        PerformanceMngInfo m = new PerformanceMngInfo();
        m.dampver = "1.0";
        m.unitname = UNIT;
        m.microver = "0920/A";
        m.serialno = "93000001";
        m.portMaxCount = 8;
        m.luMaxCount = 4096;
        m.intervaltime = 5;
        m.cfg = 7;
        m.ctl0 = 1;
        m.ctl1 = 1;
        m.structver = "S1";
        m.fromtime = time(2026, 1, 31, 12);
        m.totime = time(2026, 2, 1, 12);
        return m;
    }

    @Test
    public void aCollectionWritesItsFilesAndTheCsvHoldsTheGraphs() throws Exception {
        PerformanceMngInfo m = mng();
        JNI.KX_PerformanceDataInitialize(s, "tc", m);
        assertSameFields(m, JNI.KX_PerformanceInputMngFile("tc"));
        Path perf = Sim.db().getParent().resolve("perf");
        assertTrue(Files.readString(perf.resolve("tc.mng")).startsWith("# pernix-sim performance collection 1\n"));

        // Two samples, five minutes each.
        List<Integer> lu0 = new ArrayList<>();
        PerformanceCollectGraphInfo last = null;
        PerformanceAll[] pre = JNI.KX_GetPerformanceAll(UNIT, s, 0);
        for (int i = 0; i < 2; i++) {
            Sim.clock(300);
            PerformanceAll[] after = JNI.KX_GetPerformanceAll(UNIT, s, 0);
            PerformanceOutputGraphInfo in = new PerformanceOutputGraphInfo();
            in.preinfo0 = pre[0];
            in.afterinfo0 = after[0];
            in.preinfo1 = pre[1];
            in.afterinfo1 = after[1];
            PerformanceCollectGraphInfo g = JNI.KX_PerformanceOutputGraphInfo(UNIT, s, in);
            assertEquals(1, g.graphinfo[0].lu[0].base.valid);
            lu0.add(g.graphinfo[0].lu[0].base.iorate);
            JNI.KX_PerformanceDataOutput("tc", g);
            last = g;
            pre = after;
        }
        assertEquals(8 + 2 * 2 * 379540, Files.size(perf.resolve("tc.dat")));

        PerformanceCSVInfo info = csvInfo();
        assertEquals(2, JNI.KX_GetPerformanceCSVNum("tc", info));
        info.fromDataNum = 2;
        assertEquals(1, JNI.KX_GetPerformanceCSVNum("tc", info));
        info.fromDataNum = 0;
        Path out = Sim.dir().resolve("csv");
        Files.createDirectories(out);
        info.dirname = out.toString();
        info.opt[0].lu = 1;
        JNI.KX_PerformanceOutputCSV("tc", info);
        List<String[]> rows = csv(out.resolve("ctl0_lu.csv"));
        assertArrayEquals(new String[] {"no", "time", "lu", "iorate"}, java.util.Arrays.copyOf(rows.get(0), 4));
        Map<String, String> lu0Rate = new HashMap<>();
        for (String[] r : rows.subList(1, rows.size())) {
            if (r[2].equals("0")) {
                lu0Rate.put(r[0], r[3]);
            }
        }
        for (int i = 0; i < 2; i++) {
            assertEquals("sample " + (i + 1), String.valueOf(lu0.get(i)), lu0Rate.get(String.valueOf(i + 1)));
        }
        assertTrue("controller 1 was not asked for", !Files.exists(out.resolve("ctl1_lu.csv")));

        // A damaged management file: refused, the collection left as it was.
        Path mngFile = perf.resolve("tc.mng");
        String text = Files.readString(mngFile);
        Files.writeString(mngFile, text.replace("cfg=7", "cfg=seven"));
        expect(12305, () -> JNI.KX_PerformanceInputMngFile("tc"));
        PerformanceCollectGraphInfo again = last;
        expect(12305, () -> JNI.KX_PerformanceDataOutput("tc", again));
        Files.writeString(mngFile, text);
        assertEquals(2, JNI.KX_GetPerformanceCSVNum("tc", csvInfo()));
        expect(12304, () -> JNI.KX_PerformanceInputMngFile("zz"));
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_PerformanceDataInitialize(s, "../x", m));
    }

    private static PerformanceCSVInfo csvInfo() {
        PerformanceCSVInfo info = new PerformanceCSVInfo();
        info.fromtime = new PerformanceTime();
        info.totime = new PerformanceTime();
        info.opt = new PerformanceCSVOutputOpt[] {new PerformanceCSVOutputOpt(), new PerformanceCSVOutputOpt()};
        info.dirname = "";
        return info;
    }

    @Test
    public void faultRulesFailTheLargeGetters() throws Exception {
        Sim.tool("faults", "add", "KX_GetStatisticalInformation", "12296", "@1");
        expect(Sim.BUSY, () -> JNI.KX_GetStatisticalInformation(UNIT, s, 1));
        assertEquals(1, JNI.KX_GetStatisticalInformation(UNIT, s, 1).unite_option);
        Sim.tool("faults", "add", "KX_PerformanceDataInitialize", "12304", "@always");
        expect(12304, () -> JNI.KX_PerformanceDataInitialize(s, "ft", mng()));
        expect(12304, () -> JNI.KX_PerformanceInputMngFile("ft"));  // nothing was written
    }
}
