package kxbench;

import java.nio.ByteBuffer;
import orvane.str.diskarray.*;

/** Plain-Java builders of the statistics and performance trees from their record bytes: the floor. */
final class PerfFloors {
    private PerfFloors() {}

    static short rate(ByteBuffer b, int o) {
        return (short) (int) (b.getDouble(o) * 100.0);
    }

    static StatisticalController StatisticalController(ByteBuffer b, int o) {
        StatisticalController x = new StatisticalController();
        x.power_on = b.getInt(o + 0);
        x.reset = b.getInt(o + 4);
        x.total_time = b.getInt(o + 8);
        x.on_time = b.getInt(o + 12);
        x.total_time_rap_cnt = b.getInt(o + 16);
        x.total_time_rap_cnt_work = b.getInt(o + 20);
        x.lu_change = b.getInt(o + 24);
        x.procnt_time = new int[4];
        for (int i = 0; i < 4; i++) x.procnt_time[i] = b.getInt(o + 28 + 4 * i);
        return x;
    }

    static StatisticalHostCommand_Info StatisticalHostCommand_Info(ByteBuffer b, int o) {
        StatisticalHostCommand_Info x = new StatisticalHostCommand_Info();
        x.read_count = b.getInt(o + 0);
        x.write_count = b.getInt(o + 4);
        return x;
    }

    static StatisticalHostCommand StatisticalHostCommand(ByteBuffer b, int o) {
        StatisticalHostCommand x = new StatisticalHostCommand();
        x.lu = new StatisticalHostCommand_Info[4096];
        for (int i = 0; i < 4096; i++) x.lu[i] = StatisticalHostCommand_Info(b, o + 0 + 8 * i);
        return x;
    }

    static StatisticalCommandStatus_Info StatisticalCommandStatus_Info(ByteBuffer b, int o) {
        StatisticalCommandStatus_Info x = new StatisticalCommandStatus_Info();
        x.r_cache = b.getInt(o + 0);
        x.w_cache = b.getInt(o + 4);
        x.seq_r = b.getInt(o + 8);
        x.seq_w = b.getInt(o + 12);
        x.pre_exec = b.getInt(o + 16);
        x.w_through = b.getInt(o + 20);
        x.re_asign = b.getInt(o + 24);
        x.rd_miss = b.getInt(o + 28);
        x.wr_spl = b.getInt(o + 32);
        return x;
    }

    static StatisticalCommandStatus StatisticalCommandStatus(ByteBuffer b, int o) {
        StatisticalCommandStatus x = new StatisticalCommandStatus();
        x.lu = new StatisticalCommandStatus_Info[4096];
        for (int i = 0; i < 4096; i++) x.lu[i] = StatisticalCommandStatus_Info(b, o + 0 + 36 * i);
        return x;
    }

    static StatisticalCachePartition StatisticalCachePartition(ByteBuffer b, int o) {
        StatisticalCachePartition x = new StatisticalCachePartition();
        x.wrt_inhcnt = b.getInt(o + 0);
        x.wrt_outhcnt = b.getInt(o + 4);
        x.seqwr_bufcnt = b.getInt(o + 8);
        x.seg_lock_cnt = b.getInt(o + 12);
        return x;
    }

    static StatisticalCache StatisticalCache(ByteBuffer b, int o) {
        StatisticalCache x = new StatisticalCache();
        x.wrt_inhcnt = b.getInt(o + 0);
        x.wrt_outhcnt = b.getInt(o + 4);
        x.seqwr_bufcnt = b.getInt(o + 8);
        x.seg_lock_cnt = b.getInt(o + 12);
        x.cachepartition = new StatisticalCachePartition[32];
        for (int i = 0; i < 32; i++) x.cachepartition[i] = StatisticalCachePartition(b, o + 16 + 16 * i);
        return x;
    }

    static StatisticalWriteAfter_PDEVInfo StatisticalWriteAfter_PDEVInfo(ByteBuffer b, int o) {
        StatisticalWriteAfter_PDEVInfo x = new StatisticalWriteAfter_PDEVInfo();
        x.gather_prc_cnt = b.getInt(o + 0);
        x.gather_max = b.getInt(o + 4);
        x.gather_min = b.getInt(o + 8);
        x.gather_cnt = b.getInt(o + 12);
        return x;
    }

    static StatisticalWriteAfter StatisticalWriteAfter(ByteBuffer b, int o) {
        StatisticalWriteAfter x = new StatisticalWriteAfter();
        x.raid0_stripe_cnt = b.getInt(o + 0);
        x.raid0_stripe_job = new int[30][15];
        for (int i = 0; i < 30; i++) for (int j = 0; j < 15; j++) x.raid0_stripe_job[i][j] = b.getInt(o + 4 + 4 * (15 * i + j));
        x.raid5_stripe_cnt = b.getInt(o + 1804);
        x.raid5_stripe_job = new int[30][15];
        for (int i = 0; i < 30; i++) for (int j = 0; j < 15; j++) x.raid5_stripe_job[i][j] = b.getInt(o + 1808 + 4 * (15 * i + j));
        x.stripe_job_rmw = new int[30][15];
        for (int i = 0; i < 30; i++) for (int j = 0; j < 15; j++) x.stripe_job_rmw[i][j] = b.getInt(o + 3608 + 4 * (15 * i + j));
        x.stripe_job_partial = new int[30][15];
        for (int i = 0; i < 30; i++) for (int j = 0; j < 15; j++) x.stripe_job_partial[i][j] = b.getInt(o + 5408 + 4 * (15 * i + j));
        x.pdev = new StatisticalWriteAfter_PDEVInfo[30][15];
        for (int i = 0; i < 30; i++) for (int j = 0; j < 15; j++) x.pdev[i][j] = StatisticalWriteAfter_PDEVInfo(b, o + 7208 + 16 * (15 * i + j));
        return x;
    }

    static StatisticalDriveRestoration StatisticalDriveRestoration(ByteBuffer b, int o) {
        StatisticalDriveRestoration x = new StatisticalDriveRestoration();
        x.inter_cnt = b.getInt(o + 0);
        x.back_cnt = b.getInt(o + 4);
        x.system_cnt = b.getInt(o + 8);
        return x;
    }

    static StatisticalCacheMemory StatisticalCacheMemory(ByteBuffer b, int o) {
        StatisticalCacheMemory x = new StatisticalCacheMemory();
        x.battery = b.getInt(o + 0);
        x.threshold = b.getInt(o + 4);
        x.correct_err = new int[32];
        for (int i = 0; i < 32; i++) x.correct_err[i] = b.getInt(o + 8 + 4 * i);
        x.segment = new int[32][18];
        for (int i = 0; i < 32; i++) for (int j = 0; j < 18; j++) x.segment[i][j] = b.getInt(o + 136 + 4 * (18 * i + j));
        return x;
    }

    static StatisticalDrive_Info StatisticalDrive_Info(ByteBuffer b, int o) {
        StatisticalDrive_Info x = new StatisticalDrive_Info();
        x.d_had_rec = b.getInt(o + 0);
        x.d_had_urec = b.getInt(o + 4);
        x.d_med_rec = b.getInt(o + 8);
        x.d_med_urec = b.getInt(o + 12);
        x.d_rw_rec = b.getInt(o + 16);
        x.d_rw_urec = b.getInt(o + 20);
        x.d_drive_rec = b.getInt(o + 24);
        x.d_drive_urec = b.getInt(o + 28);
        x.d_crhd_rec = b.getInt(o + 32);
        x.d_crhd_urec = b.getInt(o + 36);
        x.d_scsi_rec = b.getInt(o + 40);
        x.d_scsi_urec = b.getInt(o + 44);
        x.ov_correct_err = b.getInt(o + 48);
        x.ov_uncorrect_err = b.getInt(o + 52);
        x.ov_restor_cnt = b.getInt(o + 56);
        x.drv_port_err = new int[2];
        for (int i = 0; i < 2; i++) x.drv_port_err[i] = b.getInt(o + 60 + 4 * i);
        x.link_failre = new int[2];
        for (int i = 0; i < 2; i++) x.link_failre[i] = b.getInt(o + 68 + 4 * i);
        return x;
    }

    static StatisticalDrive StatisticalDrive(ByteBuffer b, int o) {
        StatisticalDrive x = new StatisticalDrive();
        x.err_rtry = b.getInt(o + 0);
        x.drive = new StatisticalDrive_Info[30][15];
        for (int i = 0; i < 30; i++) for (int j = 0; j < 15; j++) x.drive[i][j] = StatisticalDrive_Info(b, o + 4 + 76 * (15 * i + j));
        return x;
    }

    static StatisticalHostSpc_Info StatisticalHostSpc_Info(ByteBuffer b, int o) {
        StatisticalHostSpc_Info x = new StatisticalHostSpc_Info();
        x.retry = b.getInt(o + 0);
        x.err_threshold = b.getInt(o + 4);
        x.err_count = b.getInt(o + 8);
        return x;
    }

    static StatisticalHostSpc StatisticalHostSpc(ByteBuffer b, int o) {
        StatisticalHostSpc x = new StatisticalHostSpc();
        x.port = new StatisticalHostSpc_Info[4];
        for (int i = 0; i < 4; i++) x.port[i] = StatisticalHostSpc_Info(b, o + 0 + 12 * i);
        return x;
    }

    static StatisticalDriveSpc StatisticalDriveSpc(ByteBuffer b, int o) {
        StatisticalDriveSpc x = new StatisticalDriveSpc();
        x.retry = b.getInt(o + 0);
        x.err_threshold = b.getInt(o + 4);
        x.err_count = new int[6];
        for (int i = 0; i < 6; i++) x.err_count[i] = b.getInt(o + 8 + 4 * i);
        return x;
    }

    static StatisticalDriveFpc_Info StatisticalDriveFpc_Info(ByteBuffer b, int o) {
        StatisticalDriveFpc_Info x = new StatisticalDriveFpc_Info();
        x.normal_fpc_err = b.getInt(o + 0);
        x.alternate_fpc_err = b.getInt(o + 4);
        x.normal_link_err = b.getInt(o + 8);
        x.alternate_link_err = b.getInt(o + 12);
        x.normal_link_fail = b.getInt(o + 16);
        x.alternate_link_fail = b.getInt(o + 20);
        return x;
    }

    static StatisticalDriveFpc StatisticalDriveFpc(ByteBuffer b, int o) {
        StatisticalDriveFpc x = new StatisticalDriveFpc();
        x.fpc = new StatisticalDriveFpc_Info[4];
        for (int i = 0; i < 4; i++) x.fpc[i] = StatisticalDriveFpc_Info(b, o + 0 + 24 * i);
        return x;
    }

    static StatisticalDriveDma_Error StatisticalDriveDma_Error(ByteBuffer b, int o) {
        StatisticalDriveDma_Error x = new StatisticalDriveDma_Error();
        x.dma_error = b.getInt(o + 0);
        x.drr_error = b.getInt(o + 4);
        x.bus_error = b.getInt(o + 8);
        x.la_error = b.getInt(o + 12);
        return x;
    }

    static StatisticalDriveDma StatisticalDriveDma(ByteBuffer b, int o) {
        StatisticalDriveDma x = new StatisticalDriveDma();
        x.dma_retry = b.getInt(o + 0);
        x.dma_path_retry = b.getInt(o + 4);
        x.drr_retry = b.getInt(o + 8);
        x.error = new StatisticalDriveDma_Error[6];
        for (int i = 0; i < 6; i++) x.error[i] = StatisticalDriveDma_Error(b, o + 12 + 16 * i);
        return x;
    }

    static StatisticalHostDma StatisticalHostDma(ByteBuffer b, int o) {
        StatisticalHostDma x = new StatisticalHostDma();
        x.err_rtry = b.getInt(o + 0);
        x.dma_errcnt = b.getInt(o + 4);
        x.bus_errcnt = b.getInt(o + 8);
        x.la_errcnt = b.getInt(o + 12);
        return x;
    }

    static StatisticalHontai StatisticalHontai(ByteBuffer b, int o) {
        StatisticalHontai x = new StatisticalHontai();
        x.pctl_err = b.getInt(o + 0);
        x.pci_err = b.getInt(o + 4);
        x.mpu_err = b.getInt(o + 8);
        x.dctl_err = b.getInt(o + 12);
        x.bridge_err = b.getInt(o + 16);
        x.ps = b.getInt(o + 20);
        x.fan = b.getInt(o + 24);
        x.upst = b.getInt(o + 28);
        x.ac_inbox = b.getInt(o + 32);
        x.backup_power = b.getInt(o + 36);
        x.auto_reset = b.getInt(o + 40);
        x.auto_reboot = b.getInt(o + 44);
        x.ectl_err = b.getInt(o + 48);
        return x;
    }

    static StatisticalShuuhen StatisticalShuuhen(ByteBuffer b, int o) {
        StatisticalShuuhen x = new StatisticalShuuhen();
        x.panel = b.getInt(o + 0);
        x.fdd = b.getInt(o + 4);
        x.rs232c = b.getInt(o + 8);
        x.lan = b.getInt(o + 12);
        return x;
    }

    static StatisticalDual StatisticalDual(ByteBuffer b, int o) {
        StatisticalDual x = new StatisticalDual();
        x.other_correct = b.getInt(o + 0);
        x.other_dual = b.getInt(o + 4);
        x.self_dual = b.getInt(o + 8);
        return x;
    }

    static StatisticalFibre_Info StatisticalFibre_Info(ByteBuffer b, int o) {
        StatisticalFibre_Info x = new StatisticalFibre_Info();
        x.tbl_id = b.getInt(o + 0);
        x.ube = b.getInt(o + 4);
        x.der = b.getInt(o + 8);
        x.per = b.getInt(o + 12);
        x.dpe = b.getInt(o + 16);
        x.see = b.getInt(o + 20);
        x.rma = b.getInt(o + 24);
        x.rta = b.getInt(o + 28);
        x.sta = b.getInt(o + 32);
        x.mdpe = b.getInt(o + 36);
        x.ope = b.getInt(o + 40);
        x.ipe = b.getInt(o + 44);
        x.flt = b.getInt(o + 48);
        x.os = b.getInt(o + 52);
        x.ls = b.getInt(o + 56);
        x.drs = b.getInt(o + 60);
        x.lpe = b.getInt(o + 64);
        x.lpb = b.getInt(o + 68);
        x.ols = b.getInt(o + 72);
        x.lst = b.getInt(o + 76);
        x.lpf = b.getInt(o + 80);
        x.ba = b.getInt(o + 84);
        x.lf = b.getInt(o + 88);
        x.ce = b.getInt(o + 92);
        x.ew = b.getInt(o + 96);
        x.lup = b.getInt(o + 100);
        x.ldn = b.getInt(o + 104);
        x.loss_of_sig = b.getInt(o + 108);
        x.bad_rx_char = b.getInt(o + 112);
        x.loss_of_sync = b.getInt(o + 116);
        x.link_fail = b.getInt(o + 120);
        x.rx_eofa = b.getInt(o + 124);
        x.dis_frm = b.getInt(o + 128);
        x.bad_crc = b.getInt(o + 132);
        x.proto_err = b.getInt(o + 136);
        x.sest_lru = b.getInt(o + 140);
        x.dis_frm_cnt = b.getInt(o + 144);
        x.pes = b.getInt(o + 148);
        x.rfpe = b.getInt(o + 152);
        x.wfpe = b.getInt(o + 156);
        x.pesc = b.getInt(o + 160);
        x.peid = b.getInt(o + 164);
        x.peod = b.getInt(o + 168);
        x.ape = b.getInt(o + 172);
        x.sbce = b.getInt(o + 176);
        x.rbce = b.getInt(o + 180);
        x.dte = b.getInt(o + 184);
        x.mie = b.getInt(o + 188);
        x.ssdr = b.getInt(o + 192);
        x.rsce = b.getInt(o + 196);
        x.usc = b.getInt(o + 200);
        x.scd = b.getInt(o + 204);
        x.softrst = b.getInt(o + 208);
        x.ill_frame = b.getInt(o + 212);
        x.rstp = b.getInt(o + 216);
        x.logo = b.getInt(o + 220);
        x.implogo = b.getInt(o + 224);
        x.tprlo = b.getInt(o + 228);
        x.abts = b.getInt(o + 232);
        x.trs = b.getInt(o + 236);
        x.cts = b.getInt(o + 240);
        x.ats = b.getInt(o + 244);
        x.frsv = b.getInt(o + 248);
        x.trs_spread = b.getInt(o + 252);
        x.rstlip_syori = b.getInt(o + 256);
        x.lur = b.getInt(o + 260);
        x.lur_spread = b.getInt(o + 264);
        x.tprlo_spread = b.getInt(o + 268);
        x.clearaca = b.getInt(o + 272);
        return x;
    }

    static StatisticalFibre StatisticalFibre(ByteBuffer b, int o) {
        StatisticalFibre x = new StatisticalFibre();
        x.Install = new StatisticalFibre_Info[4];
        for (int i = 0; i < 4; i++) x.Install[i] = StatisticalFibre_Info(b, o + 0 + 276 * i);
        x.Pson = new StatisticalFibre_Info[4];
        for (int i = 0; i < 4; i++) x.Pson[i] = StatisticalFibre_Info(b, o + 1104 + 276 * i);
        return x;
    }

    static StatisticalUnit StatisticalUnit(ByteBuffer b, int o) {
        StatisticalUnit x = new StatisticalUnit();
        x.battery = b.getInt(o + 0);
        x.ps = b.getInt(o + 4);
        x.fan = b.getInt(o + 8);
        x.upst = b.getInt(o + 12);
        x.backup_power = b.getInt(o + 16);
        return x;
    }

    static StatisticalDriveError_LimitInfo StatisticalDriveError_LimitInfo(ByteBuffer b, int o) {
        StatisticalDriveError_LimitInfo x = new StatisticalDriveError_LimitInfo();
        x.limit_had_rec = b.getInt(o + 0);
        x.limit_had_urec = b.getInt(o + 4);
        x.limit_med_rec = b.getInt(o + 8);
        x.limit_med_urec = b.getInt(o + 12);
        x.limit_rw_rec = b.getInt(o + 16);
        x.limit_rw_urec = b.getInt(o + 20);
        x.limit_drive_rec = b.getInt(o + 24);
        x.limit_drive_urec = b.getInt(o + 28);
        x.limit_crhd_rec = b.getInt(o + 32);
        x.limit_crhd_urec = b.getInt(o + 36);
        x.limit_scsi_rec = b.getInt(o + 40);
        x.limit_scsi_urec = b.getInt(o + 44);
        x.limit_ov_corerr = b.getInt(o + 48);
        x.limit_ov_ucorerr = b.getInt(o + 52);
        x.limit_drive_port = b.getInt(o + 56);
        return x;
    }

    static StatisticalDriveError_Info StatisticalDriveError_Info(ByteBuffer b, int o) {
        StatisticalDriveError_Info x = new StatisticalDriveError_Info();
        x.drv_on_time = b.getInt(o + 0);
        x.had_rec_limit = b.getInt(o + 4);
        x.had_urec_limit = b.getInt(o + 8);
        x.med_rec_limit = b.getInt(o + 12);
        x.med_urec_limit = b.getInt(o + 16);
        x.rw_rec_limit = b.getInt(o + 20);
        x.rw_urec_limit = b.getInt(o + 24);
        x.drive_rec_limit = b.getInt(o + 28);
        x.drive_urec_limit = b.getInt(o + 32);
        x.crhd_rec_limit = b.getInt(o + 36);
        x.crhd_urec_limit = b.getInt(o + 40);
        x.scsi_rec_limit = b.getInt(o + 44);
        x.scsi_urec_limit = b.getInt(o + 48);
        x.ov_corerr_limit = b.getInt(o + 52);
        x.ov_ucorerr_limit = b.getInt(o + 56);
        x.drive_port_limit1 = new int[2];
        for (int i = 0; i < 2; i++) x.drive_port_limit1[i] = b.getInt(o + 60 + 4 * i);
        x.drive_port_limit2 = new int[2];
        for (int i = 0; i < 2; i++) x.drive_port_limit2[i] = b.getInt(o + 68 + 4 * i);
        x.drive_port_limit3 = new int[2];
        for (int i = 0; i < 2; i++) x.drive_port_limit3[i] = b.getInt(o + 76 + 4 * i);
        return x;
    }

    static StatisticalDriveError StatisticalDriveError(ByteBuffer b, int o) {
        StatisticalDriveError x = new StatisticalDriveError();
        x.limit = StatisticalDriveError_LimitInfo(b, o + 0);
        x.drive = new StatisticalDriveError_Info[30][15];
        for (int i = 0; i < 30; i++) for (int j = 0; j < 15; j++) x.drive[i][j] = StatisticalDriveError_Info(b, o + 60 + 84 * (15 * i + j));
        return x;
    }

    static StatisticalInformation StatisticalInformation(ByteBuffer b, int o) {
        StatisticalInformation x = new StatisticalInformation();
        x.unite_option = b.getInt(o + 0);
        x.controller = new StatisticalController[2];
        for (int i = 0; i < 2; i++) x.controller[i] = StatisticalController(b, o + 4 + 44 * i);
        x.h_command = new StatisticalHostCommand[2];
        for (int i = 0; i < 2; i++) x.h_command[i] = StatisticalHostCommand(b, o + 92 + 32768 * i);
        x.h_command_unite = new StatisticalHostCommand[2];
        for (int i = 0; i < 2; i++) x.h_command_unite[i] = StatisticalHostCommand(b, o + 65628 + 32768 * i);
        x.com_status = new StatisticalCommandStatus[2];
        for (int i = 0; i < 2; i++) x.com_status[i] = StatisticalCommandStatus(b, o + 131164 + 147456 * i);
        x.com_status_unite = new StatisticalCommandStatus[2];
        for (int i = 0; i < 2; i++) x.com_status_unite[i] = StatisticalCommandStatus(b, o + 426076 + 147456 * i);
        x.cache = new StatisticalCache[2];
        for (int i = 0; i < 2; i++) x.cache[i] = StatisticalCache(b, o + 720988 + 528 * i);
        x.writeafter = new StatisticalWriteAfter[2];
        for (int i = 0; i < 2; i++) x.writeafter[i] = StatisticalWriteAfter(b, o + 722044 + 14408 * i);
        x.drive_rest = new StatisticalDriveRestoration[2];
        for (int i = 0; i < 2; i++) x.drive_rest[i] = StatisticalDriveRestoration(b, o + 750860 + 12 * i);
        x.cache_mem = new StatisticalCacheMemory[2];
        for (int i = 0; i < 2; i++) x.cache_mem[i] = StatisticalCacheMemory(b, o + 750884 + 2440 * i);
        x.drive = new StatisticalDrive[2];
        for (int i = 0; i < 2; i++) x.drive[i] = StatisticalDrive(b, o + 755764 + 34204 * i);
        x.h_spc = new StatisticalHostSpc[2];
        for (int i = 0; i < 2; i++) x.h_spc[i] = StatisticalHostSpc(b, o + 824172 + 48 * i);
        x.d_spc = new StatisticalDriveSpc[2];
        for (int i = 0; i < 2; i++) x.d_spc[i] = StatisticalDriveSpc(b, o + 824268 + 32 * i);
        x.d_fpc = new StatisticalDriveFpc[2];
        for (int i = 0; i < 2; i++) x.d_fpc[i] = StatisticalDriveFpc(b, o + 824332 + 96 * i);
        x.d_dma = new StatisticalDriveDma[2];
        for (int i = 0; i < 2; i++) x.d_dma[i] = StatisticalDriveDma(b, o + 824524 + 108 * i);
        x.h_dma = new StatisticalHostDma[2];
        for (int i = 0; i < 2; i++) x.h_dma[i] = StatisticalHostDma(b, o + 824740 + 16 * i);
        x.hontai = new StatisticalHontai[2];
        for (int i = 0; i < 2; i++) x.hontai[i] = StatisticalHontai(b, o + 824772 + 52 * i);
        x.shuuhen = new StatisticalShuuhen[2];
        for (int i = 0; i < 2; i++) x.shuuhen[i] = StatisticalShuuhen(b, o + 824876 + 16 * i);
        x.dual = new StatisticalDual[2];
        for (int i = 0; i < 2; i++) x.dual[i] = StatisticalDual(b, o + 824908 + 12 * i);
        x.fibre = new StatisticalFibre[2];
        for (int i = 0; i < 2; i++) x.fibre[i] = StatisticalFibre(b, o + 824932 + 2208 * i);
        x.unit = new StatisticalUnit[2];
        for (int i = 0; i < 2; i++) x.unit[i] = StatisticalUnit(b, o + 829348 + 20 * i);
        x.drive_err = new StatisticalDriveError[2];
        for (int i = 0; i < 2; i++) x.drive_err[i] = StatisticalDriveError(b, o + 829388 + 37860 * i);
        return x;
    }

    static KXTime KXTime(ByteBuffer b, int o) {
        KXTime x = new KXTime();
        x.tm_sec = b.getInt(o + 0);
        x.tm_min = b.getInt(o + 4);
        x.tm_hour = b.getInt(o + 8);
        x.tm_mday = b.getInt(o + 12);
        x.tm_mon = b.getInt(o + 16);
        x.tm_year = b.getInt(o + 20);
        x.tm_wday = b.getInt(o + 24);
        x.tm_yday = b.getInt(o + 28);
        x.tm_isdst = b.getInt(o + 32);
        return x;
    }

    static PerformanceTime PerformanceTime(ByteBuffer b, int o) {
        PerformanceTime x = new PerformanceTime();
        x.year = b.getInt(o + 0);
        x.month = b.getInt(o + 4);
        x.day = b.getInt(o + 8);
        x.hour = b.getInt(o + 12);
        x.minute = b.getInt(o + 16);
        x.second = b.getInt(o + 20);
        return x;
    }

    static StatisticalCommand_Info StatisticalCommand_Info(ByteBuffer b, int o) {
        StatisticalCommand_Info x = new StatisticalCommand_Info();
        x.read_count = b.getInt(o + 0);
        x.write_count = b.getInt(o + 4);
        x.read_cache = b.getInt(o + 8);
        x.write_cache = b.getInt(o + 12);
        return x;
    }

    static StatisticalCommand StatisticalCommand(ByteBuffer b, int o) {
        StatisticalCommand x = new StatisticalCommand();
        x.lu = new StatisticalCommand_Info[4096];
        for (int i = 0; i < 4096; i++) x.lu[i] = StatisticalCommand_Info(b, o + 0 + 16 * i);
        x.mtime = KXTime(b, o + 65536);
        return x;
    }

    static CommandAll_Info CommandAll_Info(ByteBuffer b, int o) {
        CommandAll_Info x = new CommandAll_Info();
        x.valid = b.getInt(o + 0);
        x.support = b.getInt(o + 4);
        x.read_count = b.getInt(o + 8);
        x.write_count = b.getInt(o + 12);
        x.read_cache = b.getInt(o + 16);
        x.write_cache = b.getInt(o + 20);
        x.read_size = b.getInt(o + 24);
        x.write_size = b.getInt(o + 28);
        x.online_verify_count = b.getInt(o + 32);
        return x;
    }

    static LuEx_CommandInfo LuEx_CommandInfo(ByteBuffer b, int o) {
        LuEx_CommandInfo x = new LuEx_CommandInfo();
        x.valid = b.getInt(o + 0);
        x.support = b.getInt(o + 4);
        x.command_count = b.getInt(o + 8);
        x.command_total_time_h = b.getInt(o + 12);
        x.command_total_time_l = b.getInt(o + 16);
        x.command_max_time_h = b.getInt(o + 20);
        x.command_max_time_l = b.getInt(o + 24);
        x.delay_command_count_upto300 = b.getInt(o + 28);
        x.delay_command_count_upto500 = b.getInt(o + 32);
        x.delay_command_count_upto1000 = b.getInt(o + 36);
        x.delay_command_count_ormore1000 = b.getInt(o + 40);
        return x;
    }

    static LuEx_Info LuEx_Info(ByteBuffer b, int o) {
        LuEx_Info x = new LuEx_Info();
        x.valid = b.getInt(o + 0);
        x.support = b.getInt(o + 4);
        x.read_hit = LuEx_CommandInfo(b, o + 8);
        x.write_hit = LuEx_CommandInfo(b, o + 52);
        x.read_miss = LuEx_CommandInfo(b, o + 96);
        x.write_miss = LuEx_CommandInfo(b, o + 140);
        x.read_job = LuEx_CommandInfo(b, o + 184);
        x.write_job = LuEx_CommandInfo(b, o + 228);
        x.tag_count = b.getInt(o + 272);
        return x;
    }

    static CachePartitionAll_Info CachePartitionAll_Info(ByteBuffer b, int o) {
        CachePartitionAll_Info x = new CachePartitionAll_Info();
        x.valid = b.getInt(o + 0);
        x.support = b.getInt(o + 4);
        x.partition_valid = b.getInt(o + 8);
        x.partition_cache_size = b.getInt(o + 12);
        x.used_cache_size = b.getInt(o + 16);
        x.used_cache_clean = b.getInt(o + 20);
        x.used_cache_middle = b.getInt(o + 24);
        x.used_cache_physical = b.getInt(o + 28);
        return x;
    }

    static CacheBusAll_Info CacheBusAll_Info(ByteBuffer b, int o) {
        CacheBusAll_Info x = new CacheBusAll_Info();
        x.valid = b.getInt(o + 0);
        x.support = b.getInt(o + 4);
        x.cachebus_monitoring_time = b.getInt(o + 8);
        x.cachebus_used_time = b.getInt(o + 12);
        x.host_cachebus_used_time = b.getInt(o + 16);
        x.drive_cachebus_used_time = b.getInt(o + 20);
        x.drr_cachebus_used_time = b.getInt(o + 24);
        x.cpu_cachebus_used_time = b.getInt(o + 28);
        x.dual_cachebus_used_time = b.getInt(o + 32);
        return x;
    }

    static DriveAll_Info DriveAll_Info(ByteBuffer b, int o) {
        DriveAll_Info x = new DriveAll_Info();
        x.drive_info = CommandAll_Info(b, o + 0);
        x.valid = b.getInt(o + 36);
        x.support = b.getInt(o + 40);
        x.not_opr_time_h = b.getInt(o + 44);
        x.not_opr_time_l = b.getInt(o + 48);
        x.tag_count = new int[60];
        for (int i = 0; i < 60; i++) x.tag_count[i] = b.getInt(o + 52 + 4 * i);
        x.unload_time = b.getInt(o + 292);
        return x;
    }

    static ProcessorAll_Info ProcessorAll_Info(ByteBuffer b, int o) {
        ProcessorAll_Info x = new ProcessorAll_Info();
        x.valid = b.getInt(o + 0);
        x.support = b.getInt(o + 4);
        x.all_opr_time_h = b.getInt(o + 8);
        x.all_opr_time_l = b.getInt(o + 12);
        x.special_job_time_h = b.getInt(o + 16);
        x.special_job_time_l = b.getInt(o + 20);
        x.job_io_time_h = b.getInt(o + 24);
        x.job_io_time_l = b.getInt(o + 28);
        x.io_special_time_h = b.getInt(o + 32);
        x.io_special_time_l = b.getInt(o + 36);
        x.host_interrup_time_h = b.getInt(o + 40);
        x.host_interrup_time_l = b.getInt(o + 44);
        x.drive_interrup_time_h = b.getInt(o + 48);
        x.drive_interrup_time_l = b.getInt(o + 52);
        x.drr_interrup_time_h = b.getInt(o + 56);
        x.drr_interrup_time_l = b.getInt(o + 60);
        x.hostio_stop_time_h = b.getInt(o + 64);
        x.hostio_stop_time_l = b.getInt(o + 68);
        return x;
    }

    static VUCommandAll_Info VUCommandAll_Info(ByteBuffer b, int o) {
        VUCommandAll_Info x = new VUCommandAll_Info();
        x.valid = b.getInt(o + 0);
        x.support = b.getInt(o + 4);
        x.command_count = b.getInt(o + 8);
        x.command_transfer_block_count = b.getInt(o + 12);
        x.command_total_time_h = b.getInt(o + 16);
        x.command_total_time_l = b.getInt(o + 20);
        x.command_max_time_h = b.getInt(o + 24);
        x.command_max_time_l = b.getInt(o + 28);
        return x;
    }

    static VUError_Info VUError_Info(ByteBuffer b, int o) {
        VUError_Info x = new VUError_Info();
        x.valid = b.getInt(o + 0);
        x.support = b.getInt(o + 4);
        x.timeout_error_count = b.getInt(o + 8);
        return x;
    }

    static VUDataAll_Info VUDataAll_Info(ByteBuffer b, int o) {
        VUDataAll_Info x = new VUDataAll_Info();
        x.control = VUCommandAll_Info(b, o + 0);
        x.data_transfer = VUCommandAll_Info(b, o + 32);
        x.error = VUError_Info(b, o + 64);
        return x;
    }

    static PerformanceAll PerformanceAll(ByteBuffer b, int o) {
        PerformanceAll x = new PerformanceAll();
        x.valid = b.getInt(o + 0);
        x.support = b.getInt(o + 4);
        x.get_status = b.getInt(o + 8);
        x.port = new CommandAll_Info[4];
        for (int i = 0; i < 4; i++) x.port[i] = CommandAll_Info(b, o + 12 + 36 * i);
        x.rg = new CommandAll_Info[90];
        for (int i = 0; i < 90; i++) x.rg[i] = CommandAll_Info(b, o + 156 + 36 * i);
        x.lu = new CommandAll_Info[4096];
        for (int i = 0; i < 4096; i++) x.lu[i] = CommandAll_Info(b, o + 3396 + 36 * i);
        x.lu_ex = new LuEx_Info[4096];
        for (int i = 0; i < 4096; i++) x.lu_ex[i] = LuEx_Info(b, o + 150852 + 276 * i);
        x.all_cache_size = b.getInt(o + 1281348);
        x.used_cache_size = b.getInt(o + 1281352);
        x.used_cache_clean = b.getInt(o + 1281356);
        x.used_cache_middle = b.getInt(o + 1281360);
        x.used_cache_physical = b.getInt(o + 1281364);
        x.cachePartition = new CachePartitionAll_Info[32];
        for (int i = 0; i < 32; i++) x.cachePartition[i] = CachePartitionAll_Info(b, o + 1281368 + 32 * i);
        x.cachebus = CacheBusAll_Info(b, o + 1282392);
        x.backend = new CommandAll_Info[8];
        for (int i = 0; i < 8; i++) x.backend[i] = CommandAll_Info(b, o + 1282428 + 36 * i);
        x.drive = new DriveAll_Info[30][15];
        for (int i = 0; i < 30; i++) for (int j = 0; j < 15; j++) x.drive[i][j] = DriveAll_Info(b, o + 1282716 + 296 * (15 * i + j));
        x.processor = ProcessorAll_Info(b, o + 1415916);
        x.vu_port = new VUDataAll_Info[4];
        for (int i = 0; i < 4; i++) x.vu_port[i] = VUDataAll_Info(b, o + 1415988 + 76 * i);
        x.vu_lu = new VUCommandAll_Info[4096];
        for (int i = 0; i < 4096; i++) x.vu_lu[i] = VUCommandAll_Info(b, o + 1416292 + 32 * i);
        x.mtime = KXTime(b, o + 1547364);
        x.err_code = b.getInt(o + 1547408);
        return x;
    }

    static PerformanceCollectGraphBase PerformanceCollectGraphBase(ByteBuffer b, int o) {
        PerformanceCollectGraphBase x = new PerformanceCollectGraphBase();
        x.valid = b.getInt(o + 0);
        x.iorate = b.getInt(o + 4);
        x.readrate = b.getInt(o + 8);
        x.writerate = b.getInt(o + 12);
        x.readhit = rate(b, o + 16);
        x.writehit = rate(b, o + 24);
        x.transrate = b.getInt(o + 32);
        x.readtransrate = b.getInt(o + 36);
        x.writetransrate = b.getInt(o + 40);
        x.onverirate = b.getInt(o + 44);
        return x;
    }

    static PerformanceCollectGraphPort PerformanceCollectGraphPort(ByteBuffer b, int o) {
        PerformanceCollectGraphPort x = new PerformanceCollectGraphPort();
        x.base = PerformanceCollectGraphBase(b, o + 0);
        return x;
    }

    static PerformanceCollectGraphLU PerformanceCollectGraphLU(ByteBuffer b, int o) {
        PerformanceCollectGraphLU x = new PerformanceCollectGraphLU();
        x.base = PerformanceCollectGraphBase(b, o + 0);
        return x;
    }

    static PerformanceCollectGraphBackend PerformanceCollectGraphBackend(ByteBuffer b, int o) {
        PerformanceCollectGraphBackend x = new PerformanceCollectGraphBackend();
        x.base = PerformanceCollectGraphBase(b, o + 0);
        return x;
    }

    static PerformanceCollectGraphDrive PerformanceCollectGraphDrive(ByteBuffer b, int o) {
        PerformanceCollectGraphDrive x = new PerformanceCollectGraphDrive();
        x.base = PerformanceCollectGraphBase(b, o + 0);
        return x;
    }

    static PerformanceCollectGraphRG PerformanceCollectGraphRG(ByteBuffer b, int o) {
        PerformanceCollectGraphRG x = new PerformanceCollectGraphRG();
        x.base = PerformanceCollectGraphBase(b, o + 0);
        return x;
    }

    static PerformanceCollectGraphCache PerformanceCollectGraphCache(ByteBuffer b, int o) {
        PerformanceCollectGraphCache x = new PerformanceCollectGraphCache();
        x.valid = b.getInt(o + 0);
        x.cachewritependingrate = rate(b, o + 4);
        return x;
    }

    static PerformanceCollectGraphProcessor PerformanceCollectGraphProcessor(ByteBuffer b, int o) {
        PerformanceCollectGraphProcessor x = new PerformanceCollectGraphProcessor();
        x.valid = b.getInt(o + 0);
        x.used_rate = rate(b, o + 4);
        return x;
    }

    static PerformanceCollectGraphDriveOpr PerformanceCollectGraphDriveOpr(ByteBuffer b, int o) {
        PerformanceCollectGraphDriveOpr x = new PerformanceCollectGraphDriveOpr();
        x.valid = b.getInt(o + 0);
        x.operate_rate = rate(b, o + 4);
        x.tag_count = b.getInt(o + 12);
        return x;
    }

    static PerformanceCollectGraphCache2 PerformanceCollectGraphCache2(ByteBuffer b, int o) {
        PerformanceCollectGraphCache2 x = new PerformanceCollectGraphCache2();
        x.valid = b.getInt(o + 0);
        x.cachecleanusagerate = rate(b, o + 4);
        x.cachemiddleusagegrate = rate(b, o + 12);
        x.cachephysicalusagerate = rate(b, o + 20);
        x.cachetotalusagerate = rate(b, o + 28);
        return x;
    }

    static PerformanceCollectGraphCachePartition PerformanceCollectGraphCachePartition(ByteBuffer b, int o) {
        PerformanceCollectGraphCachePartition x = new PerformanceCollectGraphCachePartition();
        x.valid = b.getInt(o + 0);
        x.cachewritependingrate = rate(b, o + 4);
        x.cachecleanusagerate = rate(b, o + 12);
        x.cachemiddleusagegrate = rate(b, o + 20);
        x.cachephysicalusagerate = rate(b, o + 28);
        x.cachetotalusagerate = rate(b, o + 36);
        return x;
    }

    static PerformanceCollectGraphLUEx PerformanceCollectGraphLUEx(ByteBuffer b, int o) {
        PerformanceCollectGraphLUEx x = new PerformanceCollectGraphLUEx();
        x.valid = b.getInt(o + 0);
        x.tag_count = b.getInt(o + 4);
        return x;
    }

    static PerformanceCollectGraphVUBase PerformanceCollectGraphVUBase(ByteBuffer b, int o) {
        PerformanceCollectGraphVUBase x = new PerformanceCollectGraphVUBase();
        x.valid = b.getInt(o + 0);
        x.command_iorate = b.getInt(o + 4);
        x.command_transrate = b.getInt(o + 8);
        x.command_time_h = b.getInt(o + 12);
        x.command_time_l = b.getInt(o + 16);
        x.command_max_time_h = b.getInt(o + 20);
        x.command_max_time_l = b.getInt(o + 24);
        return x;
    }

    static PerformanceCollectGraphVUPort PerformanceCollectGraphVUPort(ByteBuffer b, int o) {
        PerformanceCollectGraphVUPort x = new PerformanceCollectGraphVUPort();
        x.control = PerformanceCollectGraphVUBase(b, o + 0);
        x.data_transfer = PerformanceCollectGraphVUBase(b, o + 28);
        return x;
    }

    static PerformanceCollectGraphVULU PerformanceCollectGraphVULU(ByteBuffer b, int o) {
        PerformanceCollectGraphVULU x = new PerformanceCollectGraphVULU();
        x.data_transfer = PerformanceCollectGraphVUBase(b, o + 0);
        return x;
    }

    static PerformanceCollectGraph PerformanceCollectGraph(ByteBuffer b, int o) {
        PerformanceCollectGraph x = new PerformanceCollectGraph();
        x.mtime = new KXTime[2];
        for (int i = 0; i < 2; i++) x.mtime[i] = KXTime(b, o + 0 + 44 * i);
        x.port = new PerformanceCollectGraphPort[4];
        for (int i = 0; i < 4; i++) x.port[i] = PerformanceCollectGraphPort(b, o + 88 + 48 * i);
        x.lu = new PerformanceCollectGraphLU[4096];
        for (int i = 0; i < 4096; i++) x.lu[i] = PerformanceCollectGraphLU(b, o + 280 + 48 * i);
        x.cache = PerformanceCollectGraphCache(b, o + 196888);
        x.backend = new PerformanceCollectGraphBackend[8];
        for (int i = 0; i < 8; i++) x.backend[i] = PerformanceCollectGraphBackend(b, o + 196900 + 48 * i);
        x.drive = new PerformanceCollectGraphDrive[30][15];
        for (int i = 0; i < 30; i++) for (int j = 0; j < 15; j++) x.drive[i][j] = PerformanceCollectGraphDrive(b, o + 197284 + 48 * (15 * i + j));
        x.processor = PerformanceCollectGraphProcessor(b, o + 218884);
        x.driveopr = new PerformanceCollectGraphDriveOpr[30][15];
        for (int i = 0; i < 30; i++) for (int j = 0; j < 15; j++) x.driveopr[i][j] = PerformanceCollectGraphDriveOpr(b, o + 218896 + 16 * (15 * i + j));
        x.rg = new PerformanceCollectGraphRG[90];
        for (int i = 0; i < 90; i++) x.rg[i] = PerformanceCollectGraphRG(b, o + 226096 + 48 * i);
        x.cache2 = PerformanceCollectGraphCache2(b, o + 230416);
        x.luex = new PerformanceCollectGraphLUEx[4096];
        for (int i = 0; i < 4096; i++) x.luex[i] = PerformanceCollectGraphLUEx(b, o + 230452 + 8 * i);
        x.cachepartition = new PerformanceCollectGraphCachePartition[32];
        for (int i = 0; i < 32; i++) x.cachepartition[i] = PerformanceCollectGraphCachePartition(b, o + 263220 + 44 * i);
        x.vu_port = new PerformanceCollectGraphVUPort[4];
        for (int i = 0; i < 4; i++) x.vu_port[i] = PerformanceCollectGraphVUPort(b, o + 264628 + 56 * i);
        x.vu_lu = new PerformanceCollectGraphVULU[4096];
        for (int i = 0; i < 4096; i++) x.vu_lu[i] = PerformanceCollectGraphVULU(b, o + 264852 + 28 * i);
        return x;
    }

}
