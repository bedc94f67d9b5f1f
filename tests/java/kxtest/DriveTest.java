package kxtest;

import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;
import static org.junit.Assert.assertNull;
import static org.junit.Assert.assertTrue;

import java.util.function.Function;
import orvane.str.diskarray.DiskDrive;
import orvane.str.diskarray.DiskDriveInformation;
import orvane.str.diskarray.DiskDriveRestoration;
import orvane.str.diskarray.DriveFlashInfo;
import orvane.str.diskarray.DriveReconstructInformation;
import orvane.str.diskarray.DriveResponseDiag;
import orvane.str.diskarray.KXSessionInfo;
import orvane.str.diskarray.SATADriveInformation;
import orvane.str.diskarray.SATADriveRestoration;
import orvane.str.diskarray.SmartInfo;
import orvane.str.diskarray.SpinDownUpInformation;
import orvane.str.diskarray.SweepInfo;
import org.junit.Test;

public class DriveTest extends BridgeTest {
    static final KXSessionInfo S = SessionTest.session(11);

    /** Every native of the family but KX_GetDriveStatus, which is built differently. */
    FormatTest.Native[] natives() {
        DiskDriveRestoration r = new DiskDriveRestoration();
        SATADriveInformation sata = new SATADriveInformation();
        SATADriveRestoration sr = new SATADriveRestoration();
        DriveResponseDiag d = new DriveResponseDiag();
        return new FormatTest.Native[] {
            n("KX_GetDriveInformation", u -> () -> jni.KX_GetDriveInformation(u, S, 1, 2)),
            n("KX_GetDriveInformationAll", u -> () -> jni.KX_GetDriveInformationAll(u, S)),
            n("KX_DriveReconstructInformation", u -> () -> jni.KX_DriveReconstructInformation(u, S, 1, 2)),
            n("KX_GetDiskDriveRestoration", u -> () -> jni.KX_GetDiskDriveRestoration(u, S)),
            n("KX_SetDiskDriveRestoration", u -> () -> { jni.KX_SetDiskDriveRestoration(u, S, r); return null; }),
            n("KX_GetSATADriveInformation", u -> () -> jni.KX_GetSATADriveInformation(u, S)),
            n("KX_SetSATADriveInformation", u -> () -> { jni.KX_SetSATADriveInformation(u, S, sata); return null; }),
            n("KX_GetSATADriveRestoration", u -> () -> jni.KX_GetSATADriveRestoration(u, S)),
            n("KX_SetSATADriveRestoration", u -> () -> { jni.KX_SetSATADriveRestoration(u, S, sr); return null; }),
            n("KX_GetDriveResponseDiag", u -> () -> jni.KX_GetDriveResponseDiag(u, S)),
            n("KX_SetDriveResponseDiag", u -> () -> { jni.KX_SetDriveResponseDiag(u, S, d); return null; }),
            n("KX_SetDriveMode", u -> () -> { jni.KX_SetDriveMode(u, S, 1, 2, 3); return null; }),
            n("KX_GetSpinDownUpInformation", u -> () -> jni.KX_GetSpinDownUpInformation(u, S)),
            n("KX_SpinDownDriveByRG", u -> () -> { jni.KX_SpinDownDriveByRG(u, S, 1); return null; }),
            n("KX_SpinUpDriveByRG", u -> () -> { jni.KX_SpinUpDriveByRG(u, S, 1); return null; }),
        };
    }

    static FormatTest.Native n(String fn, Function<String, FormatTest.Call> call) {
        return new FormatTest.Native(fn, true, call);
    }

    @Test
    public void everyNativeRefusesANullUnitPassesUnitAndSessionAndReportsTheLibrarysCode() throws Throwable {
        for (FormatTest.Native n : natives()) {
            FakePernix.reset();
            assertEquals(n.fn, 258, code(() -> n.call.apply(null).run()));
            assertEquals(n.fn, 0, FakePernix.calls(n.fn));

            n.call.apply("unit-" + n.fn.length()).run();
            assertCString("unit-" + n.fn.length(), 65, FakePernix.arg(n.fn, 0, 0));
            assertArrayEquals(n.fn, S.session_id, FakePernix.arg(n.fn, 0, 1));

            FakePernix.willReturn(n.fn, 1234567);
            assertEquals(n.fn, 1234567, code(() -> n.call.apply("u").run()));
            FakePernix.willReturn(n.fn, -2);
            assertEquals(n.fn, -2, code(() -> n.call.apply("u").run()));
            FakePernix.willReturn(n.fn, 256);
            assertNull(n.fn, n.call.apply("u").run());
            assertEquals(n.fn, 4, FakePernix.calls(n.fn));
        }
    }

    @Test
    public void everyAllocationFailureIsReported() throws Throwable {
        for (FormatTest.Native n : natives()) {
            assertEachAllocationFailureReported(() -> n.call.apply("u").run());
        }
        assertEachAllocationFailureReported(() -> jni.KX_GetDriveStatus("u", S));
    }

    @Test
    public void commandsPassTheirIntsInJavaOrder() {
        jni.KX_SetDriveMode("u", S, 7, -8, 9);
        assertEquals(7, FakePernix.intArg("KX_SetDriveMode", 0, 2));
        assertEquals(-8, FakePernix.intArg("KX_SetDriveMode", 0, 3));
        assertEquals(9, FakePernix.intArg("KX_SetDriveMode", 0, 4));
        jni.KX_SpinDownDriveByRG("u", S, 89);
        assertEquals(89, FakePernix.intArg("KX_SpinDownDriveByRG", 0, 2));
        jni.KX_SpinUpDriveByRG("u", S, 0x10000);
        assertEquals(0x10000, FakePernix.intArg("KX_SpinUpDriveByRG", 0, 2));
        jni.KX_DriveReconstructInformation("u", S, 3, 14);
        assertEquals(3, FakePernix.intArg("KX_DriveReconstructInformation", 0, 2));
        assertEquals(14, FakePernix.intArg("KX_DriveReconstructInformation", 0, 3));
        jni.KX_GetDriveInformation("u", S, 5, 6);
        assertEquals(5, FakePernix.intArg("KX_GetDriveInformation", 0, 2));
        assertEquals(6, FakePernix.intArg("KX_GetDriveInformation", 0, 3));
    }

    static Rec driveInfo(int seed) {
        return Rec.of(76).str(0, "VENDOR" + seed % 10).str(9, "PRODUCT-" + seed).str(26, "R" + seed % 1000)
            .i32(32, 0x7FFFFFFF - seed).str(36, seed + "GB").i32(48, -seed).str(52, "SN" + seed)
            .i32(64, seed * 2).i32(68, seed * 3).i32(72, 7200 + seed);
    }

    static void assertDriveInfo(int seed, DiskDriveInformation d) {
        assertEquals("VENDOR" + seed % 10, d.vendor);
        assertEquals("PRODUCT-" + seed, d.product);
        assertEquals("R" + seed % 1000, d.revision);
        assertEquals(0x7FFFFFFF - seed, d.lastLBA);
        assertEquals(seed + "GB", d.drive_capacity);
        assertEquals(-seed, d.add_info_index);
        assertEquals("SN" + seed, d.serial);
        assertEquals(seed * 2, d.unit_type);
        assertEquals(seed * 3, d.unit_type_sub_code);
        assertEquals(7200 + seed, d.drive_rotation);
    }

    @Test
    public void driveInformationIsReadAtItsOffsets() {
        FakePernix.willWrite("KX_GetDriveInformation", 4, driveInfo(42).bytes());
        assertDriveInfo(42, jni.KX_GetDriveInformation("u", S, 0, 1));

        // Buffers filled to their last byte are cut at their end, not run on.
        Rec full = Rec.of(76).str(0, "ABCDEFGHI").str(9, "0123456789abcdefg").str(26, "REV123")
            .i32(32, 1).str(36, "123456789012").str(52, "SERIAL-12345").i32(64, 2);
        FakePernix.willWrite("KX_GetDriveInformation", 4, full.bytes());
        DiskDriveInformation d = jni.KX_GetDriveInformation("u", S, 0, 1);
        assertEquals("ABCDEFGHI", d.vendor);
        assertEquals("0123456789abcdefg", d.product);
        assertEquals("REV123", d.revision);
        assertEquals("123456789012", d.drive_capacity);
        assertEquals("SERIAL-12345", d.serial);
        assertEquals(1, d.lastLBA);
        assertEquals(2, d.unit_type);
    }

    @Test
    public void vendorBytesThatAreNotTextStillGiveTheIntFields() {
        Rec r = driveInfo(5).put(0, new byte[] {(byte) 0xFF, (byte) 0xC3, (byte) 0x80, (byte) 0xFE, 0});
        FakePernix.willWrite("KX_GetDriveInformation", 4, r.bytes());
        DiskDriveInformation d = jni.KX_GetDriveInformation("u", S, 0, 1);
        assertEquals(0x7FFFFFFF - 5, d.lastLBA);
        assertEquals(7205, d.drive_rotation);
        assertEquals("SN5", d.serial);
    }

    @Test
    public void driveInformationAllBuildsAllFourHundredFiftySlots() {
        Rec list = Rec.of(450 * 76);
        for (int i : new int[] {0, 1, 225, 449}) list.put(76 * i, driveInfo(i + 1).bytes());
        FakePernix.willWrite("KX_GetDriveInformationAll", 2, list.bytes());
        DiskDriveInformation[] all = jni.KX_GetDriveInformationAll("u", S);
        assertEquals(450, all.length);
        for (DiskDriveInformation d : all) assertNotNull(d);
        for (int i : new int[] {0, 1, 225, 449}) assertDriveInfo(i + 1, all[i]);
        assertEquals("", all[2].vendor);
        assertEquals(0, all[2].lastLBA);
    }

    @Test
    public void driveStatusBuildsAllSlotsAndTakesANullUnitAsAnEmptyName() throws Throwable {
        Rec list = Rec.of(450 * 28);
        for (int i = 0; i < 450; i++) {
            list.i32(28 * i, i / 15).i32(28 * i + 4, i % 15).i32(28 * i + 8, i & 1).i32(28 * i + 12, -i)
                .i32(28 * i + 16, i * 5).i32(28 * i + 20, 449 - i).i32(28 * i + 24, 0x12345678);
        }
        FakePernix.willWrite("KX_GetDriveStatus", 2, list.bytes());
        DiskDrive[] drives = jni.KX_GetDriveStatus(null, S);
        assertCString("", 65, FakePernix.arg("KX_GetDriveStatus", 0, 0));
        assertArrayEquals(S.session_id, FakePernix.arg("KX_GetDriveStatus", 0, 1));
        assertEquals(450, drives.length);
        for (int i : new int[] {0, 14, 15, 449}) {
            DiskDrive d = drives[i];
            assertEquals(i / 15, d.port_no);
            assertEquals(i % 15, d.row_no);
            assertEquals(i & 1, d.mount);
            assertEquals(-i, d.attribute);
            assertEquals(i * 5, d.drv_state);
            assertEquals(449 - i, d.spare_of_disk_port);
            assertEquals(0x12345678, d.spare_of_disk_row);
        }

        jni.KX_GetDriveStatus("unit-x", null);
        assertCString("unit-x", 65, FakePernix.arg("KX_GetDriveStatus", 1, 0));
        assertTrue(Rec.wrap(FakePernix.arg("KX_GetDriveStatus", 1, 1)).zero(0, 32));

        FakePernix.willReturn("KX_GetDriveStatus", 77);
        assertEquals(77, code(() -> jni.KX_GetDriveStatus(null, S)));
        FakePernix.willReturn("KX_GetDriveStatus", 256);
        assertNull(jni.KX_GetDriveStatus("u", S));
    }

    @Test
    public void reconstructionAndRestorationRecords() {
        FakePernix.willWrite("KX_DriveReconstructInformation", 4,
                             Rec.of(20).i32(0, 1).i32(4, -5).i32(8, 64).i32(12, 3).i32(16, 9).bytes());
        DriveReconstructInformation ri = jni.KX_DriveReconstructInformation("u", S, 3, 9);
        assertEquals(1, ri.valid);
        assertEquals(-5, ri.status_code);
        assertEquals(64, ri.progress_ratio);
        assertEquals(3, ri.hdu_no);
        assertEquals(9, ri.unit_no);

        Rec rest = Rec.of(28).i32(0, 1).i32(4, 2).i32(8, 3).i32(12, -4).i32(16, 5).i32(20, 6).i32(24, 0x7F000000);
        FakePernix.willWrite("KX_GetDiskDriveRestoration", 2, rest.bytes());
        DiskDriveRestoration r = jni.KX_GetDiskDriveRestoration("u", S);
        assertEquals(1, r.mode);
        assertEquals(2, r.restoration);
        assertEquals(3, r.dynamic_sparing);
        assertEquals(-4, r.interval);
        assertEquals(5, r.unit_size);
        assertEquals(6, r.sparemode);
        assertEquals(0x7F000000, r.no_copyback_allunit);
        jni.KX_SetDiskDriveRestoration("u", S, r);
        assertArrayEquals(rest.bytes(), FakePernix.arg("KX_SetDiskDriveRestoration", 0, 2));

        // A null object is not refused: the library gets the zero record.
        jni.KX_SetDiskDriveRestoration("u", S, null);
        assertTrue(Rec.wrap(FakePernix.arg("KX_SetDiskDriveRestoration", 1, 2)).zero(0, 28));
    }

    static Rec sata() {
        return Rec.of(40).i32(0, 1).i32(4, 24).i32(8, 6).i32(12, -1).i32(16, 2)
            .i32(20, 3).i32(24, 600).i32(28, 1000)
            .i32(32, 1).i32(36, 50);
    }

    @Test
    public void sataDriveInformationTravelsAsThreeNestedRecords() {
        FakePernix.willWrite("KX_GetSATADriveInformation", 2, sata().bytes());
        SATADriveInformation s = jni.KX_GetSATADriveInformation("u", S);
        assertEquals(1, s.sweep_info.sweep_valid);
        assertEquals(24, s.sweep_info.interval_time);
        assertEquals(6, s.sweep_info.stop_time);
        assertEquals(-1, s.sweep_info.unload);
        assertEquals(2, s.sweep_info.onlineVerify);
        assertEquals(3, s.flash_info.compare_mode);
        assertEquals(600, s.flash_info.drv_flash_time);
        assertEquals(1000, s.flash_info.drv_flash_io_count);
        assertEquals(1, s.smart_info.smart_valid);
        assertEquals(50, s.smart_info.reassign_thres);

        jni.KX_SetSATADriveInformation("u", S, s);
        assertArrayEquals(sata().bytes(), FakePernix.arg("KX_SetSATADriveInformation", 0, 2));
    }

    @Test
    public void aNullNestedRecordLeavesItAndTheLaterPartsUnfilled() {
        SATADriveInformation s = new SATADriveInformation();
        s.sweep_info = new SweepInfo();
        s.sweep_info.sweep_valid = 1;
        s.sweep_info.onlineVerify = 5;
        s.smart_info = new SmartInfo();
        s.smart_info.smart_valid = 9;
        jni.KX_SetSATADriveInformation("u", S, s);
        Rec r = Rec.wrap(FakePernix.arg("KX_SetSATADriveInformation", 0, 2));
        assertEquals(1, r.i32(0));
        assertEquals(5, r.i32(16));
        assertTrue(r.zero(20, 20));

        s.sweep_info = null;
        s.flash_info = new DriveFlashInfo();
        s.flash_info.compare_mode = 4;
        jni.KX_SetSATADriveInformation("u", S, s);
        assertTrue(Rec.wrap(FakePernix.arg("KX_SetSATADriveInformation", 1, 2)).zero(0, 40));
    }

    @Test
    public void sataRestorationAndResponseDiagnosisTravelBothWays() {
        FakePernix.willWrite("KX_GetSATADriveRestoration", 2, Rec.of(4).i32(0, -3).bytes());
        SATADriveRestoration sr = jni.KX_GetSATADriveRestoration("u", S);
        assertEquals(-3, sr.collect_copy_times);
        sr.collect_copy_times = 8;
        jni.KX_SetSATADriveRestoration("u", S, sr);
        assertArrayEquals(Rec.of(4).i32(0, 8).bytes(), FakePernix.arg("KX_SetSATADriveRestoration", 0, 2));

        Rec diag = Rec.of(24).i32(0, 1).i32(4, 2).i32(8, 3).i32(12, 40).i32(16, -5).i32(20, 60);
        FakePernix.willWrite("KX_GetDriveResponseDiag", 2, diag.bytes());
        DriveResponseDiag d = jni.KX_GetDriveResponseDiag("u", S);
        assertEquals(1, d.valid);
        assertEquals(2, d.set_mode);
        assertEquals(3, d.mode);
        assertEquals(40, d.threshold);
        assertEquals(-5, d.sata_diag);
        assertEquals(60, d.autodiag_threshold);
        jni.KX_SetDriveResponseDiag("u", S, d);
        assertArrayEquals(diag.bytes(), FakePernix.arg("KX_SetDriveResponseDiag", 0, 2));
    }

    @Test
    public void spinDownUpInformationBuildsEveryGroupAndLuWhateverTheCounts() {
        Rec r = Rec.of(50964).i32(0, 2).i32(4, 0).i32(1808, 1);
        for (int i = 0; i < 90; i++) {
            int off = 8 + 20 * i;
            r.i32(off, i).i32(off + 4, i % 3).i32(off + 8, 1).i32(off + 12, i * 10).i32(off + 16, -i);
        }
        for (int i = 0; i < 4096; i++) {
            int off = 1812 + 12 * i;
            r.i32(off, i).i32(off + 4, i % 2).i32(off + 8, 4095 - i);
        }
        FakePernix.willWrite("KX_GetSpinDownUpInformation", 2, r.bytes());
        SpinDownUpInformation s = jni.KX_GetSpinDownUpInformation("u", S);
        assertEquals(2, s.option);
        assertEquals(0, s.rg_count);
        assertEquals(1, s.lu_count);
        assertEquals(90, s.rg.length);
        assertEquals(4096, s.lu.length);
        for (int i : new int[] {0, 1, 89}) {
            assertEquals(i, s.rg[i].rgnum);
            assertEquals(i % 3, s.rg[i].rg_power_saving_status);
            assertEquals(1, s.rg[i].rg_power_saving);
            assertEquals(i * 10, s.rg[i].spin_down_count);
            assertEquals(-i, s.rg[i].spin_error);
        }
        for (int i : new int[] {0, 1, 4095}) {
            assertEquals(i, s.lu[i].lun);
            assertEquals(i % 2, s.lu[i].lu_power_saving);
            assertEquals(4095 - i, s.lu[i].lu_power_saving_detail);
        }
    }
}
