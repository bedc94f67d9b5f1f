package simtest;

import static org.junit.Assert.assertEquals;
import static simtest.Sim.JNI;
import static simtest.Sim.UNIT;
import static simtest.Sim.expect;

import java.io.ByteArrayOutputStream;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import org.junit.After;
import org.junit.AfterClass;
import org.junit.BeforeClass;
import org.junit.Test;
import org.junit.experimental.categories.Category;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.KXUserInfo;
import orvane.str.diskarray.MicroFileInformation;
import orvane.str.diskarray.MicroReplaceInformation;

/**
 * A controller microcode update through the bridge: part files written here
 * in the array's microcode format, joined, downloaded transfer by transfer,
 * put in force and completed as the stepped clock lets the controllers
 * restart; the revision the unit reports before and after; a cancel that
 * leaves the running revision; malformed files refused with the joined image
 * kept.  Whatever a test joined is dropped after it.
 */
public class MicrocodeTest {
    private static final int BAD_FILE = 12305;
    private static KXSessionInfo s;

    @BeforeClass
    public static void login() throws Exception {
        s = Sim.admin();
        KXUserInfo u = new KXUserInfo();
        u.user = Sim.ADMIN;
        u.passwd = Sim.PASSWORD;
        JNI.KX_LoginKXUnit(UNIT, 1, u);  // the download count asks by unit
    }

    @After
    public void dropImage() throws Exception {
        JNI.KX_CancelMicroFileConcat();
    }

    @AfterClass
    public static void logout() throws Exception {
        JNI.KX_LogoutKXUnit(UNIT, 1);
        Sim.logout(s);
    }

    // ---- the file, written by a writer of the test's own

    private static int fnv1a(byte[] data) {
        int h = 0x811c9dc5;
        for (byte b : data) {
            h ^= b & 0xff;
            h *= 16777619;
        }
        return h;
    }

    /** One part file: the header, an empty line, the payload. */
    static byte[] part(String head, int k, int n, byte[] payload) throws Exception {
        String text = "pernix-microcode 1\n" + head + "piece " + k + "/" + n + "\nlength " + payload.length
                + "\nchecksum " + String.format("%08x", fnv1a(payload)) + "\n\n";
        ByteArrayOutputStream out = new ByteArrayOutputStream();
        out.write(text.getBytes(StandardCharsets.US_ASCII));
        out.write(payload);
        return out.toByteArray();
    }

    static String controller(String revision) {
        return "kind controller\nrevision " + revision + "\nboot-wait 20\n";
    }

    static byte[] payload(int bytes, int seed) {
        byte[] p = new byte[bytes];
        for (int i = 0; i < bytes; i++) {
            p[i] = (byte) (i * 31 + seed);
        }
        return p;
    }

    /** A folder of two parts (300 KiB and 100 KiB: two transfers of 256 KiB) and a stray file. */
    static String image(String name, String revision) throws Exception {
        Path d = Files.createDirectories(Sim.dir().resolve(name));
        Files.write(d.resolve("p1.pxm"), part(controller(revision), 1, 2, payload(300 * 1024, 1)));
        Files.write(d.resolve("p2.pxm"), part(controller(revision), 2, 2, payload(100 * 1024, 2)));
        Files.write(d.resolve("notes.txt"), "not a part".getBytes(StandardCharsets.US_ASCII));
        return d.toString();
    }

    static String running() throws Exception {
        return JNI.KX_GetUnitCondition(UNIT, s, 0).micro;
    }

    /** Joins the folder and lets the joining finish on the clock; the parts counted. */
    static int join(String dir) throws Exception {
        int parts = JNI.KX_MicroFileConcat(UNIT, s, dir, 0);
        assertEquals("nothing joined until the clock has moved", 0, JNI.KX_GetMicroFileInformation().valid);
        Sim.clock(6);
        return parts;
    }

    static void downloadAll() throws Exception {
        int count = JNI.KX_GetMicroDownloadCount(UNIT);
        assertEquals("400 KiB in transfers of 256 KiB", 2, count);
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_MicroDownload(UNIT, s, 2, count, 0));  // out of order
        for (int i = 1; i <= count; i++) {
            JNI.KX_MicroDownload(UNIT, s, i, count, 0);
        }
        expect(Sim.BUSY, () -> JNI.KX_MicroDownload(UNIT, s, count + 1, count, 0));
    }

    // ---- the update

    @Test
    @Category(Smoke.class)
    public void anUpdateStepsThroughItsStatesWithTheClock() throws Exception {
        String before = running();
        assertEquals(before, JNI.KX_GetNewMicroRevision());
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_GetMicroDownloadCount(UNIT));

        String dir = image("update", "0987/C");
        assertEquals("a check only joins nothing", 2, JNI.KX_MicroFileConcat(UNIT, s, dir, 1));
        assertEquals(0, JNI.KX_GetMicroFileInformation().valid);
        assertEquals("the stray file is no part", 2, join(dir));
        MicroFileInformation info = JNI.KX_GetMicroFileInformation();
        assertEquals(1, info.valid);
        assertEquals("0987/C", info.micro);
        assertEquals(20, info.booting_wait);
        assertEquals("0987/C", JNI.KX_GetNewMicroRevision());
        assertEquals("still the old one running", before, running());

        expect(Sim.BUSY, () -> JNI.KX_MicroReplace(UNIT, s, 0));  // nothing downloaded yet
        downloadAll();
        expect(Sim.BUSY, () -> JNI.KX_CompleteMicroReplace(UNIT, s, 0));  // not replaced yet

        MicroReplaceInformation r = JNI.KX_MicroReplaceEx(UNIT, s, 0);
        assertEquals(1, r.valid);
        assertEquals(1, r.WaitCancelreq);
        assertEquals("controller 0 first", 0, r.ReplaceCTL);
        expect(Sim.BUSY, () -> JNI.KX_MicroReplace(UNIT, s, 0));  // under way already

        Sim.clock(35);  // one controller after the other: 2 x 20 s
        expect(Sim.BUSY, () -> JNI.KX_CompleteMicroReplace(UNIT, s, 0));
        assertEquals(before, running());
        Sim.clock(6);
        expect(Sim.BAD_PARAMETER, () -> JNI.KX_CompleteMicroReplace(UNIT, s, 1));
        JNI.KX_CompleteMicroReplace(UNIT, s, 0);

        assertEquals("0987/C", running());
        assertEquals("0987/C", JNI.KX_GetUnitCondition(UNIT, s, 0).micro_pair);
        assertEquals("0987/C", JNI.KX_GetNewMicroRevision());
        assertEquals("the image is gone", 0, JNI.KX_GetMicroFileInformation().valid);
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_CompleteMicroReplace(UNIT, s, 0));
    }

    @Test
    public void cancelLeavesTheRunningRevision() throws Exception {
        String before = running();
        String dir = image("cancelled", "0999/Z");
        join(dir);
        downloadAll();
        JNI.KX_MicroReplace(UNIT, s, 1);  // both at once
        JNI.KX_CancelMicroFileConcat();
        Sim.clock(60);
        expect(Sim.NO_SUCH_OBJECT, () -> JNI.KX_CompleteMicroReplace(UNIT, s, 0));
        assertEquals(before, running());
        assertEquals(before, JNI.KX_GetNewMicroRevision());
        assertEquals(0, JNI.KX_GetMicroFileInformation().valid);
        JNI.KX_CancelMicroFileConcat();  // nothing left to drop

        // The revision that runs is downloaded again only when asked to.
        join(image("same", before));
        expect(Sim.EXISTS, () -> JNI.KX_MicroDownload(UNIT, s, 1, 2, 0));
        JNI.KX_MicroDownload(UNIT, s, 1, 2, 1);
    }

    @Test
    public void malformedFilesAreRefusedAndKeepTheJoinedImage() throws Exception {
        Path good = Sim.dir().resolve("good.pxm");
        Files.write(good, part(controller("0990/A"), 1, 1, payload(1000, 3)));
        JNI.KX_MicroFileConcat2(UNIT, s, good.toString());
        Sim.clock(6);

        byte[] ok = part(controller("0991/A"), 1, 1, payload(1000, 4));
        byte[] flipped = ok.clone();
        flipped[flipped.length - 1] ^= 1;
        byte[] shortPayload = java.util.Arrays.copyOf(ok, ok.length - 1);
        String[] names = {"checksum", "short", "header", "part-missing", "enclosure", "empty"};
        byte[][] bodies = {
            flipped,
            shortPayload,
            part("kind controller\nrevision 0991/A\nrevision 0992/A\n", 1, 1, payload(10, 5)),
            part(controller("0991/A"), 1, 2, payload(10, 6)),
            part("kind enclosure\nmain A0991\nboot 02\nectl 02\nrtr R0991\nses S0991\n", 1, 1, payload(10, 7)),
            new byte[0],
        };
        for (int i = 0; i < names.length; i++) {
            Path p = Sim.dir().resolve(names[i] + ".pxm");
            Files.write(p, bodies[i]);
            assertEquals(names[i], BAD_FILE, Sim.codeOf(() -> JNI.KX_MicroFileConcat(UNIT, s, p.toString(), 0)));
        }
        expect(12304, () -> JNI.KX_MicroFileConcat(UNIT, s, Sim.dir().resolve("missing.pxm").toString(), 0));

        MicroFileInformation info = JNI.KX_GetMicroFileInformation();
        assertEquals(1, info.valid);
        assertEquals("0990/A", info.micro);
        assertEquals(20, info.booting_wait);
    }
}
