package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotSame;
import static org.junit.Assert.assertTrue;

import orvane.str.diskarray.*;
import org.junit.Test;

/**
 * The walker remembers classes and field IDs within one native call.  What
 * could go wrong with that: an element of a subclass read through the IDs of
 * another class, a missing field reported at the first object instead of the
 * one that reaches it, a second tree of the same call built from stale state.
 * The probe's "stuffed" runs leave the lookups no room, so everything goes by
 * name at every use: both ways must give the same bytes, objects and errors.
 */
public class CallLookupsTest extends BridgeTest {
    /** Hides the inherited hdu_no with a field of its own. */
    public static class HidingDrive extends CreateRgDrive {
        public int hdu_no;
    }

    /** A subclass that adds a field and hides nothing. */
    public static class TaggedDrive extends CreateRgDrive {
        public int tag;
    }

    /** Its description also names "gone", which it lacks. */
    public static class Row {
        public int a;
        public String s;
    }

    public static class Table {
        public Row[] rows;
    }

    @Test
    public void elementsOfSubclassesReadTheirOwnFieldsWhereverTheyStand() {
        CreateRaidGroup c = RaidGroupTest.create(0);
        c.rgdrv = new CreateRgDrive[450];
        for (int i = 0; i < 450; i++) {
            // Subclass first, then a mix, so that neither class's IDs are the first ones seen.
            CreateRgDrive d = i % 3 == 0 ? new HidingDrive() : i % 3 == 1 ? new CreateRgDrive() : new TaggedDrive();
            d.unit_no = i;
            d.hdu_no = 1000 + i;  // the inherited field
            if (d instanceof HidingDrive) ((HidingDrive) d).hdu_no = -i;
            c.rgdrv[i] = d;
        }
        jni.KX_CreateRaidGroup("u", RaidGroupTest.S, c);
        Rec sent = Rec.wrap(FakePernix.arg("KX_CreateRaidGroup", 0, 2));
        for (int i = 0; i < 450; i++) {
            assertEquals("unit_no " + i, i, sent.i32(28 + 8 * i));
            assertEquals("hdu_no " + i, i % 3 == 0 ? -i : 1000 + i, sent.i32(32 + 8 * i));
        }
    }

    /** Hides the inherited rate readhit with one of its own. */
    public static class HidingGraphBase extends PerformanceCollectGraphBase {
        public short readhit;
    }

    @Test
    public void ratesOfSubclassesAreReadFromTheirOwnFields() {
        // The rates' own converter remembers their IDs per class: ports 0 and 2
        // of the base class, 1 and 3 of the subclass.
        PerformanceCollectGraph g = new PerformanceCollectGraph();
        g.mtime = new KXTime[] {new KXTime(), new KXTime()};
        g.port = new PerformanceCollectGraphPort[4];
        for (int i = 0; i < 4; i++) {
            PerformanceCollectGraphBase b = i % 2 == 0 ? new PerformanceCollectGraphBase() : new HidingGraphBase();
            b.readhit = (short) (100 + i);  // the inherited field
            b.writehit = (short) (300 + i);
            if (b instanceof HidingGraphBase) ((HidingGraphBase) b).readhit = (short) (-200 - i);
            g.port[i] = new PerformanceCollectGraphPort();
            g.port[i].base = b;
        }
        PerformanceCollectGraphInfo info = new PerformanceCollectGraphInfo();
        info.graphinfo = new PerformanceCollectGraph[] {g};
        jni.KX_PerformanceDataOutput("x", info);
        java.nio.ByteBuffer sent = java.nio.ByteBuffer.wrap(FakePernix.pointee("KX_PerformanceDataOutput", 0, 1, 0))
            .order(java.nio.ByteOrder.LITTLE_ENDIAN);
        for (int i = 0; i < 4; i++) {
            int base = 88 + 48 * i;  // port i's base
            assertEquals("readhit " + i, (i % 2 == 0 ? 100 + i : -200 - i) / 100.0, sent.getDouble(base + 16), 0);
            assertEquals("writehit " + i, (300 + i) / 100.0, sent.getDouble(base + 24), 0);
        }
    }

    /** 4096 rows: the first half stop at their null string, so "gone" is first reached by row 2048. */
    static Table halfBrokenTable() {
        Table t = new Table();
        t.rows = new Row[4096];
        for (int i = 0; i < 4096; i++) {
            t.rows[i] = new Row();
            t.rows[i].a = i + 1;
            t.rows[i].s = i < 2048 ? null : "r" + i;
        }
        return t;
    }

    @Test
    public void aMissingFieldFailsAtTheRowThatReachesItWithTheByNameOutcome() {
        byte[][] bytes = new byte[2][];
        String[] messages = new String[2];
        for (int stuffed = 0; stuffed < 2; stuffed++) {
            byte[] dst = new byte[4096 * 16];
            boolean stuff = stuffed == 1;
            Throwable t = thrown(() -> CoreProbe.readRows(halfBrokenTable(), stuff, dst));
            assertEquals(NoSuchFieldError.class, t.getClass());
            assertTrue(t.getMessage(), t.getMessage().contains("gone"));
            messages[stuffed] = t.getMessage();
            Rec rec = Rec.wrap(dst);
            for (int i = 0; i < 2048; i++) {
                assertEquals(i + 1, rec.i32(16 * i));
                assertTrue(rec.zero(16 * i + 4, 12));
            }
            assertEquals(2049, rec.i32(16 * 2048));
            assertEquals("r2048", rec.str(16 * 2048 + 4, 8));
            assertTrue("nothing read after the failing row", rec.zero(16 * 2048 + 12, 16 * 2047 + 4));
            bytes[stuffed] = dst;
        }
        assertArrayEquals(bytes[0], bytes[1]);
        assertEquals(messages[0], messages[1]);

        // Rows of a table whose every string is null never reach the field: no error at all.
        Table quiet = halfBrokenTable();
        for (Row r : quiet.rows) r.s = null;
        for (boolean stuffed : new boolean[] {false, true}) {
            byte[] dst = new byte[4096 * 16];
            assertEquals(0, CoreProbe.readRows(quiet, stuffed, dst));
            assertEquals(4096, Rec.wrap(dst).i32(16 * 4095));
        }
    }

    @Test
    public void aTreeBuiltTwiceInOneCallComesOutWholeBothTimes() {
        Rec rec = Rec.of(11884).i32(0, 90);
        for (int g = 0; g < 90; g++) RaidGroupTest.put(rec, 4 + 52 * g, g, RaidGroupTest.RG_DETAIL);
        for (int k = 0; k < 30 * 15; k++) RaidGroupTest.put(rec, 4684 + 16 * k, k, RaidGroupTest.RG_DRIVE_INFO);
        for (boolean stuffed : new boolean[] {false, true}) {
            Object[] both = CoreProbe.writeGroupsTwice(rec.bytes(), stuffed);
            assertNotSame(both[0], both[1]);
            for (Object o : both) {
                RaidGroupInformation info = (RaidGroupInformation) o;
                assertEquals(90, info.rg_count);
                for (int g = 0; g < 90; g++) RaidGroupTest.assertFields(info.rg[g], g, RaidGroupTest.RG_DETAIL);
                for (int k = 0; k < 30 * 15; k++)
                    RaidGroupTest.assertFields(info.rgdrv[k / 15][k % 15], k, RaidGroupTest.RG_DRIVE_INFO);
            }
            RaidGroupInformation a = (RaidGroupInformation) both[0];
            RaidGroupInformation b = (RaidGroupInformation) both[1];
            assertNotSame(a.rg, b.rg);
            assertNotSame(a.rgdrv[29], b.rgdrv[29]);
            assertNotSame(a.rgdrv[29][14], b.rgdrv[29][14]);
        }
    }
}
