package kxtest;

import static kxtest.RaidGroupTest.S;
import static kxtest.RaidGroupTest.assertFields;
import static kxtest.RaidGroupTest.put;
import static org.junit.Assert.assertArrayEquals;
import static org.junit.Assert.assertEquals;
import static org.junit.Assert.assertNotNull;

import java.util.function.Consumer;
import java.util.function.Supplier;
import orvane.str.diskarray.*;
import org.junit.Test;

public class DriveTest extends BridgeTest {
    static final String[] RESTORATION = {"mode", "restoration", "dynamic_sparing", "interval", "unit_size",
        "sparemode", "no_copyback_allunit"};
    static final String[] RESPONSE_DIAG = {"valid", "set_mode", "mode", "threshold", "sata_diag", "autodiag_threshold"};
    static final String[] RECONSTRUCT = {"valid", "status_code", "progress_ratio", "hdu_no", "unit_no"};
    static final String[] DISK_DRIVE = {"port_no", "row_no", "mount", "attribute", "drv_state",
        "spare_of_disk_port", "spare_of_disk_row"};
    static final String[] SWEEP = {"sweep_valid", "interval_time", "stop_time", "unload", "onlineVerify"};
    static final String[] FLASH = {"compare_mode", "drv_flash_time", "drv_flash_io_count"};
    static final String[] SMART = {"smart_valid", "reassign_thres"};
    static final String[] SPIN_RG = {"rgnum", "rg_power_saving_status", "rg_power_saving", "spin_down_count",
        "spin_error"};
    static final String[] SPIN_LU = {"lun", "lu_power_saving", "lu_power_saving_detail"};

    /** KX_Get<name> fills a record whose object, handed to KX_Set<name>, goes back byte for byte. */
    static <T> void roundTrip(String name, int size, String[] fields, Supplier<T> get, Consumer<T> set) {
        byte[] rec = put(Rec.of(size), 0, size, fields).bytes();
        FakePernix.willWrite("KX_Get" + name, 2, rec);
        T obj = get.get();
        assertFields(obj, size, fields);
        set.accept(obj);
        assertArrayEquals(name, rec, FakePernix.arg("KX_Set" + name, 0, 2));
    }

    @Test
    public void settingsTravelBothWaysAsWholeRecords() {
        roundTrip("DiskDriveRestoration", 28, RESTORATION, () -> jni.KX_GetDiskDriveRestoration("u", S),
                  r -> jni.KX_SetDiskDriveRestoration("u", S, r));
        roundTrip("SATADriveRestoration", 4, new String[] {"collect_copy_times"},
                  () -> jni.KX_GetSATADriveRestoration("u", S), r -> jni.KX_SetSATADriveRestoration("u", S, r));
        roundTrip("DriveResponseDiag", 24, RESPONSE_DIAG, () -> jni.KX_GetDriveResponseDiag("u", S),
                  r -> jni.KX_SetDriveResponseDiag("u", S, r));

        FakePernix.willWrite("KX_DriveReconstructInformation", 4, put(Rec.of(20), 0, 3, RECONSTRUCT).bytes());
        assertFields(jni.KX_DriveReconstructInformation("u", S, 3, 14), 3, RECONSTRUCT);
    }

    static Rec driveInfo(int seed) {
        return Rec.of(76).str(0, "VENDOR" + seed % 10).str(9, "PRODUCT-" + seed).str(26, "R" + seed % 1000)
            .i32(32, 0x7FFFFFFF - seed).str(36, seed + "GB").i32(48, -seed).str(52, "SN" + seed)
            .i32(64, seed * 2).i32(68, seed * 3).i32(72, 7200 + seed);
    }

    static void assertDriveInfo(int seed, DiskDriveInformation d) {
        assertArrayEquals(new Object[] {"VENDOR" + seed % 10, "PRODUCT-" + seed, "R" + seed % 1000, 0x7FFFFFFF - seed,
            seed + "GB", -seed, "SN" + seed, seed * 2, seed * 3, 7200 + seed},
            new Object[] {d.vendor, d.product, d.revision, d.lastLBA, d.drive_capacity, d.add_info_index, d.serial,
                d.unit_type, d.unit_type_sub_code, d.drive_rotation});
    }

    @Test
    public void driveInformationIsReadAtItsOffsets() {
        FakePernix.willWrite("KX_GetDriveInformation", 4, driveInfo(42).bytes());
        assertDriveInfo(42, jni.KX_GetDriveInformation("u", S, 0, 1));

        // Buffers filled to their last byte are cut at their end, not run on.
        FakePernix.willWrite("KX_GetDriveInformation", 4, Rec.of(76).str(0, "ABCDEFGHI").str(9, "0123456789abcdefg")
            .str(26, "REV123").i32(32, 1).str(36, "123456789012").str(52, "SERIAL-12345").bytes());
        DiskDriveInformation d = jni.KX_GetDriveInformation("u", S, 0, 1);
        assertArrayEquals(new Object[] {"ABCDEFGHI", "0123456789abcdefg", "REV123", 1, "123456789012", "SERIAL-12345"},
                          new Object[] {d.vendor, d.product, d.revision, d.lastLBA, d.drive_capacity, d.serial});

        // Vendor bytes that are not text do not cost the other fields.
        Rec r = driveInfo(5).put(0, new byte[] {(byte) 0xFF, (byte) 0xC3, (byte) 0x80, (byte) 0xFE, 0});
        FakePernix.willWrite("KX_GetDriveInformation", 4, r.bytes());
        d = jni.KX_GetDriveInformation("u", S, 0, 1);
        assertArrayEquals(new Object[] {0x7FFFFFFF - 5, 7205, "SN5"},
                          new Object[] {d.lastLBA, d.drive_rotation, d.serial});
    }

    @Test
    public void driveInformationAllBuildsAll450Slots() {
        Rec list = Rec.of(450 * 76);
        for (int i : new int[] {0, 449}) list.put(76 * i, driveInfo(i + 1).bytes());
        FakePernix.willWrite("KX_GetDriveInformationAll", 2, list.bytes());
        DiskDriveInformation[] all = jni.KX_GetDriveInformationAll("u", S);
        assertEquals(450, all.length);
        assertDriveInfo(1, all[0]);
        assertDriveInfo(450, all[449]);
        assertEquals("", all[2].vendor);
    }

    @Test
    public void driveStatusTakesANullUnitAsAnEmptyNameAndBuildsAllSlots() throws Throwable {
        Rec list = put(put(Rec.of(450 * 28), 0, 0, DISK_DRIVE), 28 * 449, 449, DISK_DRIVE);
        FakePernix.willWrite("KX_GetDriveStatus", 2, list.bytes());
        DiskDrive[] drives = jni.KX_GetDriveStatus(null, S);
        assertEquals(450, drives.length);
        assertFields(drives[0], 0, DISK_DRIVE);
        assertFields(drives[449], 449, DISK_DRIVE);
        assertNotNull(drives[200]);
    }

    @Test
    public void sataDriveInformationTravelsAsThreeNestedRecords() {
        Rec rec = put(put(put(Rec.of(40), 0, 1, SWEEP), 20, 2, FLASH), 32, 3, SMART);
        FakePernix.willWrite("KX_GetSATADriveInformation", 2, rec.bytes());
        SATADriveInformation s = jni.KX_GetSATADriveInformation("u", S);
        assertFields(s.sweep_info, 1, SWEEP);
        assertFields(s.flash_info, 2, FLASH);
        assertFields(s.smart_info, 3, SMART);
        jni.KX_SetSATADriveInformation("u", S, s);
        assertArrayEquals(rec.bytes(), FakePernix.arg("KX_SetSATADriveInformation", 0, 2));
    }

    @Test
    public void spinDownUpInformationBuildsEveryGroupAndLuWhateverTheCounts() {
        Rec r = put(put(Rec.of(50964).i32(0, 2).i32(4, 0).i32(1808, 1), 8, 0, SPIN_RG), 8 + 20 * 89, 89, SPIN_RG);
        put(put(r, 1812, 0, SPIN_LU), 1812 + 12 * 4095, 4095, SPIN_LU);
        FakePernix.willWrite("KX_GetSpinDownUpInformation", 2, r.bytes());
        SpinDownUpInformation s = jni.KX_GetSpinDownUpInformation("u", S);
        assertArrayEquals(new int[] {2, 0, 1, 90, 4096},
                          new int[] {s.option, s.rg_count, s.lu_count, s.rg.length, s.lu.length});
        assertFields(s.rg[0], 0, SPIN_RG);
        assertFields(s.rg[89], 89, SPIN_RG);
        assertFields(s.lu[0], 0, SPIN_LU);
        assertFields(s.lu[4095], 4095, SPIN_LU);
    }
}
