/* Statistics and performance output: the statistical information block,
 * performance snapshots, output requests, CSV extracts, the management file and
 * graph data. */
#ifndef PERNIX_PERF_H
#define PERNIX_PERF_H

#include "pernix_common.h"
#include "session.h"

/* Records that hold pointers have the natural layout of their declaration:
 * on i386 that is the library's layout, asserted below; other builds keep
 * the order of the members and widen the pointers. */
#if UINTPTR_MAX == 0xFFFFFFFFu
#define PERNIX_PERF_ILP32 1
#else
#define PERNIX_PERF_ILP32 0
#endif

/* ---- statistical information ---- */

#pragma pack(push, 1)
typedef struct StatisticalControllerRec {
  int32_t power_on;
  int32_t reset;
  int32_t total_time;
  int32_t on_time;
  int32_t total_time_rap_cnt;
  int32_t total_time_rap_cnt_work;
  int32_t lu_change;
  int32_t procnt_time[4];
} StatisticalControllerRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalControllerRec, 44);
PERNIX_OFFSET(StatisticalControllerRec, power_on, 0);
PERNIX_OFFSET(StatisticalControllerRec, reset, 4);
PERNIX_OFFSET(StatisticalControllerRec, total_time, 8);
PERNIX_OFFSET(StatisticalControllerRec, on_time, 12);
PERNIX_OFFSET(StatisticalControllerRec, total_time_rap_cnt, 16);
PERNIX_OFFSET(StatisticalControllerRec, total_time_rap_cnt_work, 20);
PERNIX_OFFSET(StatisticalControllerRec, lu_change, 24);
PERNIX_OFFSET(StatisticalControllerRec, procnt_time, 28);

#pragma pack(push, 1)
typedef struct StatisticalHostCommand_InfoRec {
  int32_t read_count;
  int32_t write_count;
} StatisticalHostCommand_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalHostCommand_InfoRec, 8);
PERNIX_OFFSET(StatisticalHostCommand_InfoRec, read_count, 0);
PERNIX_OFFSET(StatisticalHostCommand_InfoRec, write_count, 4);

#pragma pack(push, 1)
typedef struct StatisticalHostCommandRec {
  StatisticalHostCommand_InfoRec lu[4096];
} StatisticalHostCommandRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalHostCommandRec, 32768);
PERNIX_OFFSET(StatisticalHostCommandRec, lu, 0);

#pragma pack(push, 1)
typedef struct StatisticalCommandStatus_InfoRec {
  int32_t r_cache;
  int32_t w_cache;
  int32_t seq_r;
  int32_t seq_w;
  int32_t pre_exec;
  int32_t w_through;
  int32_t re_asign;
  int32_t rd_miss;
  int32_t wr_spl;
} StatisticalCommandStatus_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalCommandStatus_InfoRec, 36);
PERNIX_OFFSET(StatisticalCommandStatus_InfoRec, r_cache, 0);
PERNIX_OFFSET(StatisticalCommandStatus_InfoRec, w_cache, 4);
PERNIX_OFFSET(StatisticalCommandStatus_InfoRec, seq_r, 8);
PERNIX_OFFSET(StatisticalCommandStatus_InfoRec, seq_w, 12);
PERNIX_OFFSET(StatisticalCommandStatus_InfoRec, pre_exec, 16);
PERNIX_OFFSET(StatisticalCommandStatus_InfoRec, w_through, 20);
PERNIX_OFFSET(StatisticalCommandStatus_InfoRec, re_asign, 24);
PERNIX_OFFSET(StatisticalCommandStatus_InfoRec, rd_miss, 28);
PERNIX_OFFSET(StatisticalCommandStatus_InfoRec, wr_spl, 32);

#pragma pack(push, 1)
typedef struct StatisticalCommandStatusRec {
  StatisticalCommandStatus_InfoRec lu[4096];
} StatisticalCommandStatusRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalCommandStatusRec, 147456);
PERNIX_OFFSET(StatisticalCommandStatusRec, lu, 0);

#pragma pack(push, 1)
typedef struct StatisticalCachePartitionRec {
  int32_t wrt_inhcnt;
  int32_t wrt_outhcnt;
  int32_t seqwr_bufcnt;
  int32_t seg_lock_cnt;
} StatisticalCachePartitionRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalCachePartitionRec, 16);
PERNIX_OFFSET(StatisticalCachePartitionRec, wrt_inhcnt, 0);
PERNIX_OFFSET(StatisticalCachePartitionRec, wrt_outhcnt, 4);
PERNIX_OFFSET(StatisticalCachePartitionRec, seqwr_bufcnt, 8);
PERNIX_OFFSET(StatisticalCachePartitionRec, seg_lock_cnt, 12);

#pragma pack(push, 1)
typedef struct StatisticalCacheRec {
  int32_t wrt_inhcnt;
  int32_t wrt_outhcnt;
  int32_t seqwr_bufcnt;
  int32_t seg_lock_cnt;
  StatisticalCachePartitionRec cachepartition[32];
} StatisticalCacheRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalCacheRec, 528);
PERNIX_OFFSET(StatisticalCacheRec, wrt_inhcnt, 0);
PERNIX_OFFSET(StatisticalCacheRec, wrt_outhcnt, 4);
PERNIX_OFFSET(StatisticalCacheRec, seqwr_bufcnt, 8);
PERNIX_OFFSET(StatisticalCacheRec, seg_lock_cnt, 12);
PERNIX_OFFSET(StatisticalCacheRec, cachepartition, 16);

#pragma pack(push, 1)
typedef struct StatisticalWriteAfter_PDEVInfoRec {
  int32_t gather_prc_cnt;
  int32_t gather_max;
  int32_t gather_min;
  int32_t gather_cnt;
} StatisticalWriteAfter_PDEVInfoRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalWriteAfter_PDEVInfoRec, 16);
PERNIX_OFFSET(StatisticalWriteAfter_PDEVInfoRec, gather_prc_cnt, 0);
PERNIX_OFFSET(StatisticalWriteAfter_PDEVInfoRec, gather_max, 4);
PERNIX_OFFSET(StatisticalWriteAfter_PDEVInfoRec, gather_min, 8);
PERNIX_OFFSET(StatisticalWriteAfter_PDEVInfoRec, gather_cnt, 12);

#pragma pack(push, 1)
typedef struct StatisticalWriteAfterRec {
  int32_t raid0_stripe_cnt;
  int32_t raid0_stripe_job[30][15];
  int32_t raid5_stripe_cnt;
  int32_t raid5_stripe_job[30][15];
  int32_t stripe_job_rmw[30][15];
  int32_t stripe_job_partial[30][15];
  StatisticalWriteAfter_PDEVInfoRec pdev[30][15];
} StatisticalWriteAfterRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalWriteAfterRec, 14408);
PERNIX_OFFSET(StatisticalWriteAfterRec, raid0_stripe_cnt, 0);
PERNIX_OFFSET(StatisticalWriteAfterRec, raid0_stripe_job, 4);
PERNIX_OFFSET(StatisticalWriteAfterRec, raid5_stripe_cnt, 1804);
PERNIX_OFFSET(StatisticalWriteAfterRec, raid5_stripe_job, 1808);
PERNIX_OFFSET(StatisticalWriteAfterRec, stripe_job_rmw, 3608);
PERNIX_OFFSET(StatisticalWriteAfterRec, stripe_job_partial, 5408);
PERNIX_OFFSET(StatisticalWriteAfterRec, pdev, 7208);

#pragma pack(push, 1)
typedef struct StatisticalDriveRestorationRec {
  int32_t inter_cnt;
  int32_t back_cnt;
  int32_t system_cnt;
} StatisticalDriveRestorationRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDriveRestorationRec, 12);
PERNIX_OFFSET(StatisticalDriveRestorationRec, inter_cnt, 0);
PERNIX_OFFSET(StatisticalDriveRestorationRec, back_cnt, 4);
PERNIX_OFFSET(StatisticalDriveRestorationRec, system_cnt, 8);

#pragma pack(push, 1)
typedef struct StatisticalCacheMemoryRec {
  int32_t battery;
  int32_t threshold;
  int32_t correct_err[32];
  int32_t segment[32][18];
} StatisticalCacheMemoryRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalCacheMemoryRec, 2440);
PERNIX_OFFSET(StatisticalCacheMemoryRec, battery, 0);
PERNIX_OFFSET(StatisticalCacheMemoryRec, threshold, 4);
PERNIX_OFFSET(StatisticalCacheMemoryRec, correct_err, 8);
PERNIX_OFFSET(StatisticalCacheMemoryRec, segment, 136);

#pragma pack(push, 1)
typedef struct StatisticalDrive_InfoRec {
  int32_t d_had_rec;
  int32_t d_had_urec;
  int32_t d_med_rec;
  int32_t d_med_urec;
  int32_t d_rw_rec;
  int32_t d_rw_urec;
  int32_t d_drive_rec;
  int32_t d_drive_urec;
  int32_t d_crhd_rec;
  int32_t d_crhd_urec;
  int32_t d_scsi_rec;
  int32_t d_scsi_urec;
  int32_t ov_correct_err;
  int32_t ov_uncorrect_err;
  int32_t ov_restor_cnt;
  int32_t drv_port_err[2];
  int32_t link_failre[2];
} StatisticalDrive_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDrive_InfoRec, 76);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_had_rec, 0);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_had_urec, 4);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_med_rec, 8);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_med_urec, 12);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_rw_rec, 16);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_rw_urec, 20);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_drive_rec, 24);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_drive_urec, 28);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_crhd_rec, 32);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_crhd_urec, 36);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_scsi_rec, 40);
PERNIX_OFFSET(StatisticalDrive_InfoRec, d_scsi_urec, 44);
PERNIX_OFFSET(StatisticalDrive_InfoRec, ov_correct_err, 48);
PERNIX_OFFSET(StatisticalDrive_InfoRec, ov_uncorrect_err, 52);
PERNIX_OFFSET(StatisticalDrive_InfoRec, ov_restor_cnt, 56);
PERNIX_OFFSET(StatisticalDrive_InfoRec, drv_port_err, 60);
PERNIX_OFFSET(StatisticalDrive_InfoRec, link_failre, 68);

#pragma pack(push, 1)
typedef struct StatisticalDriveRec {
  int32_t err_rtry;
  StatisticalDrive_InfoRec drive[30][15];
} StatisticalDriveRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDriveRec, 34204);
PERNIX_OFFSET(StatisticalDriveRec, err_rtry, 0);
PERNIX_OFFSET(StatisticalDriveRec, drive, 4);

#pragma pack(push, 1)
typedef struct StatisticalHostSpc_InfoRec {
  int32_t retry;
  int32_t err_threshold;
  int32_t err_count;
} StatisticalHostSpc_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalHostSpc_InfoRec, 12);
PERNIX_OFFSET(StatisticalHostSpc_InfoRec, retry, 0);
PERNIX_OFFSET(StatisticalHostSpc_InfoRec, err_threshold, 4);
PERNIX_OFFSET(StatisticalHostSpc_InfoRec, err_count, 8);

#pragma pack(push, 1)
typedef struct StatisticalHostSpcRec {
  StatisticalHostSpc_InfoRec port[4];
} StatisticalHostSpcRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalHostSpcRec, 48);
PERNIX_OFFSET(StatisticalHostSpcRec, port, 0);

#pragma pack(push, 1)
typedef struct StatisticalDriveSpcRec {
  int32_t retry;
  int32_t err_threshold;
  int32_t err_count[6];
} StatisticalDriveSpcRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDriveSpcRec, 32);
PERNIX_OFFSET(StatisticalDriveSpcRec, retry, 0);
PERNIX_OFFSET(StatisticalDriveSpcRec, err_threshold, 4);
PERNIX_OFFSET(StatisticalDriveSpcRec, err_count, 8);

#pragma pack(push, 1)
typedef struct StatisticalDriveFpc_InfoRec {
  int32_t normal_fpc_err;
  int32_t alternate_fpc_err;
  int32_t normal_link_err;
  int32_t alternate_link_err;
  int32_t normal_link_fail;
  int32_t alternate_link_fail;
} StatisticalDriveFpc_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDriveFpc_InfoRec, 24);
PERNIX_OFFSET(StatisticalDriveFpc_InfoRec, normal_fpc_err, 0);
PERNIX_OFFSET(StatisticalDriveFpc_InfoRec, alternate_fpc_err, 4);
PERNIX_OFFSET(StatisticalDriveFpc_InfoRec, normal_link_err, 8);
PERNIX_OFFSET(StatisticalDriveFpc_InfoRec, alternate_link_err, 12);
PERNIX_OFFSET(StatisticalDriveFpc_InfoRec, normal_link_fail, 16);
PERNIX_OFFSET(StatisticalDriveFpc_InfoRec, alternate_link_fail, 20);

#pragma pack(push, 1)
typedef struct StatisticalDriveFpcRec {
  StatisticalDriveFpc_InfoRec fpc[4];
} StatisticalDriveFpcRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDriveFpcRec, 96);
PERNIX_OFFSET(StatisticalDriveFpcRec, fpc, 0);

#pragma pack(push, 1)
typedef struct StatisticalDriveDma_ErrorRec {
  int32_t dma_error;
  int32_t drr_error;
  int32_t bus_error;
  int32_t la_error;
} StatisticalDriveDma_ErrorRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDriveDma_ErrorRec, 16);
PERNIX_OFFSET(StatisticalDriveDma_ErrorRec, dma_error, 0);
PERNIX_OFFSET(StatisticalDriveDma_ErrorRec, drr_error, 4);
PERNIX_OFFSET(StatisticalDriveDma_ErrorRec, bus_error, 8);
PERNIX_OFFSET(StatisticalDriveDma_ErrorRec, la_error, 12);

#pragma pack(push, 1)
typedef struct StatisticalDriveDmaRec {
  int32_t dma_retry;
  int32_t dma_path_retry;
  int32_t drr_retry;
  StatisticalDriveDma_ErrorRec error[6];
} StatisticalDriveDmaRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDriveDmaRec, 108);
PERNIX_OFFSET(StatisticalDriveDmaRec, dma_retry, 0);
PERNIX_OFFSET(StatisticalDriveDmaRec, dma_path_retry, 4);
PERNIX_OFFSET(StatisticalDriveDmaRec, drr_retry, 8);
PERNIX_OFFSET(StatisticalDriveDmaRec, error, 12);

#pragma pack(push, 1)
typedef struct StatisticalHostDmaRec {
  int32_t err_rtry;
  int32_t dma_errcnt;
  int32_t bus_errcnt;
  int32_t la_errcnt;
} StatisticalHostDmaRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalHostDmaRec, 16);
PERNIX_OFFSET(StatisticalHostDmaRec, err_rtry, 0);
PERNIX_OFFSET(StatisticalHostDmaRec, dma_errcnt, 4);
PERNIX_OFFSET(StatisticalHostDmaRec, bus_errcnt, 8);
PERNIX_OFFSET(StatisticalHostDmaRec, la_errcnt, 12);

#pragma pack(push, 1)
typedef struct StatisticalHontaiRec {
  int32_t pctl_err;
  int32_t pci_err;
  int32_t mpu_err;
  int32_t dctl_err;
  int32_t bridge_err;
  int32_t ps;
  int32_t fan;
  int32_t upst;
  int32_t ac_inbox;
  int32_t backup_power;
  int32_t auto_reset;
  int32_t auto_reboot;
  int32_t ectl_err;
} StatisticalHontaiRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalHontaiRec, 52);
PERNIX_OFFSET(StatisticalHontaiRec, pctl_err, 0);
PERNIX_OFFSET(StatisticalHontaiRec, pci_err, 4);
PERNIX_OFFSET(StatisticalHontaiRec, mpu_err, 8);
PERNIX_OFFSET(StatisticalHontaiRec, dctl_err, 12);
PERNIX_OFFSET(StatisticalHontaiRec, bridge_err, 16);
PERNIX_OFFSET(StatisticalHontaiRec, ps, 20);
PERNIX_OFFSET(StatisticalHontaiRec, fan, 24);
PERNIX_OFFSET(StatisticalHontaiRec, upst, 28);
PERNIX_OFFSET(StatisticalHontaiRec, ac_inbox, 32);
PERNIX_OFFSET(StatisticalHontaiRec, backup_power, 36);
PERNIX_OFFSET(StatisticalHontaiRec, auto_reset, 40);
PERNIX_OFFSET(StatisticalHontaiRec, auto_reboot, 44);
PERNIX_OFFSET(StatisticalHontaiRec, ectl_err, 48);

#pragma pack(push, 1)
typedef struct StatisticalShuuhenRec {
  int32_t panel;
  int32_t fdd;
  int32_t rs232c;
  int32_t lan;
} StatisticalShuuhenRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalShuuhenRec, 16);
PERNIX_OFFSET(StatisticalShuuhenRec, panel, 0);
PERNIX_OFFSET(StatisticalShuuhenRec, fdd, 4);
PERNIX_OFFSET(StatisticalShuuhenRec, rs232c, 8);
PERNIX_OFFSET(StatisticalShuuhenRec, lan, 12);

#pragma pack(push, 1)
typedef struct StatisticalDualRec {
  int32_t other_correct;
  int32_t other_dual;
  int32_t self_dual;
} StatisticalDualRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDualRec, 12);
PERNIX_OFFSET(StatisticalDualRec, other_correct, 0);
PERNIX_OFFSET(StatisticalDualRec, other_dual, 4);
PERNIX_OFFSET(StatisticalDualRec, self_dual, 8);

#pragma pack(push, 1)
typedef struct StatisticalFibre_InfoRec {
  int32_t tbl_id;
  int32_t ube;
  int32_t der;
  int32_t per;
  int32_t dpe;
  int32_t see;
  int32_t rma;
  int32_t rta;
  int32_t sta;
  int32_t mdpe;
  int32_t ope;
  int32_t ipe;
  int32_t flt;
  int32_t os;
  int32_t ls;
  int32_t drs;
  int32_t lpe;
  int32_t lpb;
  int32_t ols;
  int32_t lst;
  int32_t lpf;
  int32_t ba;
  int32_t lf;
  int32_t ce;
  int32_t ew;
  int32_t lup;
  int32_t ldn;
  int32_t loss_of_sig;
  int32_t bad_rx_char;
  int32_t loss_of_sync;
  int32_t link_fail;
  int32_t rx_eofa;
  int32_t dis_frm;
  int32_t bad_crc;
  int32_t proto_err;
  int32_t sest_lru;
  int32_t dis_frm_cnt;
  int32_t pes;
  int32_t rfpe;
  int32_t wfpe;
  int32_t pesc;
  int32_t peid;
  int32_t peod;
  int32_t ape;
  int32_t sbce;
  int32_t rbce;
  int32_t dte;
  int32_t mie;
  int32_t ssdr;
  int32_t rsce;
  int32_t usc;
  int32_t scd;
  int32_t softrst;
  int32_t ill_frame;
  int32_t rstp;
  int32_t logo;
  int32_t implogo;
  int32_t tprlo;
  int32_t abts;
  int32_t trs;
  int32_t cts;
  int32_t ats;
  int32_t frsv;
  int32_t trs_spread;
  int32_t rstlip_syori;
  int32_t lur;
  int32_t lur_spread;
  int32_t tprlo_spread;
  int32_t clearaca;
} StatisticalFibre_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalFibre_InfoRec, 276);
PERNIX_OFFSET(StatisticalFibre_InfoRec, tbl_id, 0);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ube, 4);
PERNIX_OFFSET(StatisticalFibre_InfoRec, der, 8);
PERNIX_OFFSET(StatisticalFibre_InfoRec, per, 12);
PERNIX_OFFSET(StatisticalFibre_InfoRec, dpe, 16);
PERNIX_OFFSET(StatisticalFibre_InfoRec, see, 20);
PERNIX_OFFSET(StatisticalFibre_InfoRec, rma, 24);
PERNIX_OFFSET(StatisticalFibre_InfoRec, rta, 28);
PERNIX_OFFSET(StatisticalFibre_InfoRec, sta, 32);
PERNIX_OFFSET(StatisticalFibre_InfoRec, mdpe, 36);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ope, 40);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ipe, 44);
PERNIX_OFFSET(StatisticalFibre_InfoRec, flt, 48);
PERNIX_OFFSET(StatisticalFibre_InfoRec, os, 52);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ls, 56);
PERNIX_OFFSET(StatisticalFibre_InfoRec, drs, 60);
PERNIX_OFFSET(StatisticalFibre_InfoRec, lpe, 64);
PERNIX_OFFSET(StatisticalFibre_InfoRec, lpb, 68);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ols, 72);
PERNIX_OFFSET(StatisticalFibre_InfoRec, lst, 76);
PERNIX_OFFSET(StatisticalFibre_InfoRec, lpf, 80);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ba, 84);
PERNIX_OFFSET(StatisticalFibre_InfoRec, lf, 88);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ce, 92);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ew, 96);
PERNIX_OFFSET(StatisticalFibre_InfoRec, lup, 100);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ldn, 104);
PERNIX_OFFSET(StatisticalFibre_InfoRec, loss_of_sig, 108);
PERNIX_OFFSET(StatisticalFibre_InfoRec, bad_rx_char, 112);
PERNIX_OFFSET(StatisticalFibre_InfoRec, loss_of_sync, 116);
PERNIX_OFFSET(StatisticalFibre_InfoRec, link_fail, 120);
PERNIX_OFFSET(StatisticalFibre_InfoRec, rx_eofa, 124);
PERNIX_OFFSET(StatisticalFibre_InfoRec, dis_frm, 128);
PERNIX_OFFSET(StatisticalFibre_InfoRec, bad_crc, 132);
PERNIX_OFFSET(StatisticalFibre_InfoRec, proto_err, 136);
PERNIX_OFFSET(StatisticalFibre_InfoRec, sest_lru, 140);
PERNIX_OFFSET(StatisticalFibre_InfoRec, dis_frm_cnt, 144);
PERNIX_OFFSET(StatisticalFibre_InfoRec, pes, 148);
PERNIX_OFFSET(StatisticalFibre_InfoRec, rfpe, 152);
PERNIX_OFFSET(StatisticalFibre_InfoRec, wfpe, 156);
PERNIX_OFFSET(StatisticalFibre_InfoRec, pesc, 160);
PERNIX_OFFSET(StatisticalFibre_InfoRec, peid, 164);
PERNIX_OFFSET(StatisticalFibre_InfoRec, peod, 168);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ape, 172);
PERNIX_OFFSET(StatisticalFibre_InfoRec, sbce, 176);
PERNIX_OFFSET(StatisticalFibre_InfoRec, rbce, 180);
PERNIX_OFFSET(StatisticalFibre_InfoRec, dte, 184);
PERNIX_OFFSET(StatisticalFibre_InfoRec, mie, 188);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ssdr, 192);
PERNIX_OFFSET(StatisticalFibre_InfoRec, rsce, 196);
PERNIX_OFFSET(StatisticalFibre_InfoRec, usc, 200);
PERNIX_OFFSET(StatisticalFibre_InfoRec, scd, 204);
PERNIX_OFFSET(StatisticalFibre_InfoRec, softrst, 208);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ill_frame, 212);
PERNIX_OFFSET(StatisticalFibre_InfoRec, rstp, 216);
PERNIX_OFFSET(StatisticalFibre_InfoRec, logo, 220);
PERNIX_OFFSET(StatisticalFibre_InfoRec, implogo, 224);
PERNIX_OFFSET(StatisticalFibre_InfoRec, tprlo, 228);
PERNIX_OFFSET(StatisticalFibre_InfoRec, abts, 232);
PERNIX_OFFSET(StatisticalFibre_InfoRec, trs, 236);
PERNIX_OFFSET(StatisticalFibre_InfoRec, cts, 240);
PERNIX_OFFSET(StatisticalFibre_InfoRec, ats, 244);
PERNIX_OFFSET(StatisticalFibre_InfoRec, frsv, 248);
PERNIX_OFFSET(StatisticalFibre_InfoRec, trs_spread, 252);
PERNIX_OFFSET(StatisticalFibre_InfoRec, rstlip_syori, 256);
PERNIX_OFFSET(StatisticalFibre_InfoRec, lur, 260);
PERNIX_OFFSET(StatisticalFibre_InfoRec, lur_spread, 264);
PERNIX_OFFSET(StatisticalFibre_InfoRec, tprlo_spread, 268);
PERNIX_OFFSET(StatisticalFibre_InfoRec, clearaca, 272);

#pragma pack(push, 1)
typedef struct StatisticalFibreRec {
  StatisticalFibre_InfoRec Install[4];
  StatisticalFibre_InfoRec Pson[4];
} StatisticalFibreRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalFibreRec, 2208);
PERNIX_OFFSET(StatisticalFibreRec, Install, 0);
PERNIX_OFFSET(StatisticalFibreRec, Pson, 1104);

#pragma pack(push, 1)
typedef struct StatisticalUnitRec {
  int32_t battery;
  int32_t ps;
  int32_t fan;
  int32_t upst;
  int32_t backup_power;
} StatisticalUnitRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalUnitRec, 20);
PERNIX_OFFSET(StatisticalUnitRec, battery, 0);
PERNIX_OFFSET(StatisticalUnitRec, ps, 4);
PERNIX_OFFSET(StatisticalUnitRec, fan, 8);
PERNIX_OFFSET(StatisticalUnitRec, upst, 12);
PERNIX_OFFSET(StatisticalUnitRec, backup_power, 16);

#pragma pack(push, 1)
typedef struct StatisticalDriveError_LimitInfoRec {
  int32_t limit_had_rec;
  int32_t limit_had_urec;
  int32_t limit_med_rec;
  int32_t limit_med_urec;
  int32_t limit_rw_rec;
  int32_t limit_rw_urec;
  int32_t limit_drive_rec;
  int32_t limit_drive_urec;
  int32_t limit_crhd_rec;
  int32_t limit_crhd_urec;
  int32_t limit_scsi_rec;
  int32_t limit_scsi_urec;
  int32_t limit_ov_corerr;
  int32_t limit_ov_ucorerr;
  int32_t limit_drive_port;
} StatisticalDriveError_LimitInfoRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDriveError_LimitInfoRec, 60);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_had_rec, 0);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_had_urec, 4);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_med_rec, 8);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_med_urec, 12);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_rw_rec, 16);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_rw_urec, 20);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_drive_rec, 24);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_drive_urec, 28);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_crhd_rec, 32);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_crhd_urec, 36);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_scsi_rec, 40);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_scsi_urec, 44);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_ov_corerr, 48);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_ov_ucorerr, 52);
PERNIX_OFFSET(StatisticalDriveError_LimitInfoRec, limit_drive_port, 56);

#pragma pack(push, 1)
typedef struct StatisticalDriveError_InfoRec {
  int32_t drv_on_time;
  int32_t had_rec_limit;
  int32_t had_urec_limit;
  int32_t med_rec_limit;
  int32_t med_urec_limit;
  int32_t rw_rec_limit;
  int32_t rw_urec_limit;
  int32_t drive_rec_limit;
  int32_t drive_urec_limit;
  int32_t crhd_rec_limit;
  int32_t crhd_urec_limit;
  int32_t scsi_rec_limit;
  int32_t scsi_urec_limit;
  int32_t ov_corerr_limit;
  int32_t ov_ucorerr_limit;
  int32_t drive_port_limit1[2];
  int32_t drive_port_limit2[2];
  int32_t drive_port_limit3[2];
} StatisticalDriveError_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDriveError_InfoRec, 84);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, drv_on_time, 0);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, had_rec_limit, 4);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, had_urec_limit, 8);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, med_rec_limit, 12);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, med_urec_limit, 16);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, rw_rec_limit, 20);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, rw_urec_limit, 24);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, drive_rec_limit, 28);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, drive_urec_limit, 32);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, crhd_rec_limit, 36);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, crhd_urec_limit, 40);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, scsi_rec_limit, 44);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, scsi_urec_limit, 48);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, ov_corerr_limit, 52);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, ov_ucorerr_limit, 56);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, drive_port_limit1, 60);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, drive_port_limit2, 68);
PERNIX_OFFSET(StatisticalDriveError_InfoRec, drive_port_limit3, 76);

#pragma pack(push, 1)
typedef struct StatisticalDriveErrorRec {
  StatisticalDriveError_LimitInfoRec limit;
  StatisticalDriveError_InfoRec drive[30][15];
} StatisticalDriveErrorRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalDriveErrorRec, 37860);
PERNIX_OFFSET(StatisticalDriveErrorRec, limit, 0);
PERNIX_OFFSET(StatisticalDriveErrorRec, drive, 60);

#pragma pack(push, 1)
typedef struct StatisticalInformationRec {
  int32_t unite_option;
  StatisticalControllerRec controller[2];
  StatisticalHostCommandRec h_command[2];
  StatisticalHostCommandRec h_command_unite[2];
  StatisticalCommandStatusRec com_status[2];
  StatisticalCommandStatusRec com_status_unite[2];
  StatisticalCacheRec cache[2];
  StatisticalWriteAfterRec writeafter[2];
  StatisticalDriveRestorationRec drive_rest[2];
  StatisticalCacheMemoryRec cache_mem[2];
  StatisticalDriveRec drive[2];
  StatisticalHostSpcRec h_spc[2];
  StatisticalDriveSpcRec d_spc[2];
  StatisticalDriveFpcRec d_fpc[2];
  StatisticalDriveDmaRec d_dma[2];
  StatisticalHostDmaRec h_dma[2];
  StatisticalHontaiRec hontai[2];
  StatisticalShuuhenRec shuuhen[2];
  StatisticalDualRec dual[2];
  StatisticalFibreRec fibre[2];
  StatisticalUnitRec unit[2];
  StatisticalDriveErrorRec drive_err[2];
} StatisticalInformationRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalInformationRec, 905108);
PERNIX_OFFSET(StatisticalInformationRec, unite_option, 0);
PERNIX_OFFSET(StatisticalInformationRec, controller, 4);
PERNIX_OFFSET(StatisticalInformationRec, h_command, 92);
PERNIX_OFFSET(StatisticalInformationRec, h_command_unite, 65628);
PERNIX_OFFSET(StatisticalInformationRec, com_status, 131164);
PERNIX_OFFSET(StatisticalInformationRec, com_status_unite, 426076);
PERNIX_OFFSET(StatisticalInformationRec, cache, 720988);
PERNIX_OFFSET(StatisticalInformationRec, writeafter, 722044);
PERNIX_OFFSET(StatisticalInformationRec, drive_rest, 750860);
PERNIX_OFFSET(StatisticalInformationRec, cache_mem, 750884);
PERNIX_OFFSET(StatisticalInformationRec, drive, 755764);
PERNIX_OFFSET(StatisticalInformationRec, h_spc, 824172);
PERNIX_OFFSET(StatisticalInformationRec, d_spc, 824268);
PERNIX_OFFSET(StatisticalInformationRec, d_fpc, 824332);
PERNIX_OFFSET(StatisticalInformationRec, d_dma, 824524);
PERNIX_OFFSET(StatisticalInformationRec, h_dma, 824740);
PERNIX_OFFSET(StatisticalInformationRec, hontai, 824772);
PERNIX_OFFSET(StatisticalInformationRec, shuuhen, 824876);
PERNIX_OFFSET(StatisticalInformationRec, dual, 824908);
PERNIX_OFFSET(StatisticalInformationRec, fibre, 824932);
PERNIX_OFFSET(StatisticalInformationRec, unit, 829348);
PERNIX_OFFSET(StatisticalInformationRec, drive_err, 829388);

/* ---- performance snapshots ---- */

#pragma pack(push, 1)
typedef struct KXTimeRec {
  int32_t tm_sec;
  int32_t tm_min;
  int32_t tm_hour;
  int32_t tm_mday;
  int32_t tm_mon;
  int32_t tm_year;
  int32_t tm_wday;
  int32_t tm_yday;
  int32_t tm_isdst;
  uint8_t reserved[8];
} KXTimeRec;
#pragma pack(pop)
PERNIX_SIZE(KXTimeRec, 44);
PERNIX_OFFSET(KXTimeRec, tm_sec, 0);
PERNIX_OFFSET(KXTimeRec, tm_min, 4);
PERNIX_OFFSET(KXTimeRec, tm_hour, 8);
PERNIX_OFFSET(KXTimeRec, tm_mday, 12);
PERNIX_OFFSET(KXTimeRec, tm_mon, 16);
PERNIX_OFFSET(KXTimeRec, tm_year, 20);
PERNIX_OFFSET(KXTimeRec, tm_wday, 24);
PERNIX_OFFSET(KXTimeRec, tm_yday, 28);
PERNIX_OFFSET(KXTimeRec, tm_isdst, 32);
PERNIX_OFFSET(KXTimeRec, reserved, 36);

#pragma pack(push, 1)
typedef struct PerformanceTimeRec {
  int32_t year;
  int32_t month;
  int32_t day;
  int32_t hour;
  int32_t minute;
  int32_t second;
} PerformanceTimeRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceTimeRec, 24);
PERNIX_OFFSET(PerformanceTimeRec, year, 0);
PERNIX_OFFSET(PerformanceTimeRec, month, 4);
PERNIX_OFFSET(PerformanceTimeRec, day, 8);
PERNIX_OFFSET(PerformanceTimeRec, hour, 12);
PERNIX_OFFSET(PerformanceTimeRec, minute, 16);
PERNIX_OFFSET(PerformanceTimeRec, second, 20);

#pragma pack(push, 1)
typedef struct StatisticalCommand_InfoRec {
  int32_t read_count;
  int32_t write_count;
  int32_t read_cache;
  int32_t write_cache;
} StatisticalCommand_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalCommand_InfoRec, 16);
PERNIX_OFFSET(StatisticalCommand_InfoRec, read_count, 0);
PERNIX_OFFSET(StatisticalCommand_InfoRec, write_count, 4);
PERNIX_OFFSET(StatisticalCommand_InfoRec, read_cache, 8);
PERNIX_OFFSET(StatisticalCommand_InfoRec, write_cache, 12);

#pragma pack(push, 1)
typedef struct StatisticalCommandRec {
  StatisticalCommand_InfoRec lu[4096];
  KXTimeRec mtime;
} StatisticalCommandRec;
#pragma pack(pop)
PERNIX_SIZE(StatisticalCommandRec, 65580);
PERNIX_OFFSET(StatisticalCommandRec, lu, 0);
PERNIX_OFFSET(StatisticalCommandRec, mtime, 65536);

#pragma pack(push, 1)
typedef struct CommandAll_InfoRec {
  int32_t valid;
  int32_t support;
  int32_t read_count;
  int32_t write_count;
  int32_t read_cache;
  int32_t write_cache;
  int32_t read_size;
  int32_t write_size;
  int32_t online_verify_count;
} CommandAll_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(CommandAll_InfoRec, 36);
PERNIX_OFFSET(CommandAll_InfoRec, valid, 0);
PERNIX_OFFSET(CommandAll_InfoRec, support, 4);
PERNIX_OFFSET(CommandAll_InfoRec, read_count, 8);
PERNIX_OFFSET(CommandAll_InfoRec, write_count, 12);
PERNIX_OFFSET(CommandAll_InfoRec, read_cache, 16);
PERNIX_OFFSET(CommandAll_InfoRec, write_cache, 20);
PERNIX_OFFSET(CommandAll_InfoRec, read_size, 24);
PERNIX_OFFSET(CommandAll_InfoRec, write_size, 28);
PERNIX_OFFSET(CommandAll_InfoRec, online_verify_count, 32);

#pragma pack(push, 1)
typedef struct LuEx_CommandInfoRec {
  int32_t valid;
  int32_t support;
  int32_t command_count;
  int32_t command_total_time_h;
  int32_t command_total_time_l;
  int32_t command_max_time_h;
  int32_t command_max_time_l;
  int32_t delay_command_count_upto300;
  int32_t delay_command_count_upto500;
  int32_t delay_command_count_upto1000;
  int32_t delay_command_count_ormore1000;
} LuEx_CommandInfoRec;
#pragma pack(pop)
PERNIX_SIZE(LuEx_CommandInfoRec, 44);
PERNIX_OFFSET(LuEx_CommandInfoRec, valid, 0);
PERNIX_OFFSET(LuEx_CommandInfoRec, support, 4);
PERNIX_OFFSET(LuEx_CommandInfoRec, command_count, 8);
PERNIX_OFFSET(LuEx_CommandInfoRec, command_total_time_h, 12);
PERNIX_OFFSET(LuEx_CommandInfoRec, command_total_time_l, 16);
PERNIX_OFFSET(LuEx_CommandInfoRec, command_max_time_h, 20);
PERNIX_OFFSET(LuEx_CommandInfoRec, command_max_time_l, 24);
PERNIX_OFFSET(LuEx_CommandInfoRec, delay_command_count_upto300, 28);
PERNIX_OFFSET(LuEx_CommandInfoRec, delay_command_count_upto500, 32);
PERNIX_OFFSET(LuEx_CommandInfoRec, delay_command_count_upto1000, 36);
PERNIX_OFFSET(LuEx_CommandInfoRec, delay_command_count_ormore1000, 40);

#pragma pack(push, 1)
typedef struct LuEx_InfoRec {
  int32_t valid;
  int32_t support;
  LuEx_CommandInfoRec read_hit;
  LuEx_CommandInfoRec write_hit;
  LuEx_CommandInfoRec read_miss;
  LuEx_CommandInfoRec write_miss;
  LuEx_CommandInfoRec read_job;
  LuEx_CommandInfoRec write_job;
  int32_t tag_count;
} LuEx_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(LuEx_InfoRec, 276);
PERNIX_OFFSET(LuEx_InfoRec, valid, 0);
PERNIX_OFFSET(LuEx_InfoRec, support, 4);
PERNIX_OFFSET(LuEx_InfoRec, read_hit, 8);
PERNIX_OFFSET(LuEx_InfoRec, write_hit, 52);
PERNIX_OFFSET(LuEx_InfoRec, read_miss, 96);
PERNIX_OFFSET(LuEx_InfoRec, write_miss, 140);
PERNIX_OFFSET(LuEx_InfoRec, read_job, 184);
PERNIX_OFFSET(LuEx_InfoRec, write_job, 228);
PERNIX_OFFSET(LuEx_InfoRec, tag_count, 272);

#pragma pack(push, 1)
typedef struct CachePartitionAll_InfoRec {
  int32_t valid;
  int32_t support;
  int32_t partition_valid;
  int32_t partition_cache_size;
  int32_t used_cache_size;
  int32_t used_cache_clean;
  int32_t used_cache_middle;
  int32_t used_cache_physical;
} CachePartitionAll_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(CachePartitionAll_InfoRec, 32);
PERNIX_OFFSET(CachePartitionAll_InfoRec, valid, 0);
PERNIX_OFFSET(CachePartitionAll_InfoRec, support, 4);
PERNIX_OFFSET(CachePartitionAll_InfoRec, partition_valid, 8);
PERNIX_OFFSET(CachePartitionAll_InfoRec, partition_cache_size, 12);
PERNIX_OFFSET(CachePartitionAll_InfoRec, used_cache_size, 16);
PERNIX_OFFSET(CachePartitionAll_InfoRec, used_cache_clean, 20);
PERNIX_OFFSET(CachePartitionAll_InfoRec, used_cache_middle, 24);
PERNIX_OFFSET(CachePartitionAll_InfoRec, used_cache_physical, 28);

#pragma pack(push, 1)
typedef struct CacheBusAll_InfoRec {
  int32_t valid;
  int32_t support;
  int32_t cachebus_monitoring_time;
  int32_t cachebus_used_time;
  int32_t host_cachebus_used_time;
  int32_t drive_cachebus_used_time;
  int32_t drr_cachebus_used_time;
  int32_t cpu_cachebus_used_time;
  int32_t dual_cachebus_used_time;
} CacheBusAll_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(CacheBusAll_InfoRec, 36);
PERNIX_OFFSET(CacheBusAll_InfoRec, valid, 0);
PERNIX_OFFSET(CacheBusAll_InfoRec, support, 4);
PERNIX_OFFSET(CacheBusAll_InfoRec, cachebus_monitoring_time, 8);
PERNIX_OFFSET(CacheBusAll_InfoRec, cachebus_used_time, 12);
PERNIX_OFFSET(CacheBusAll_InfoRec, host_cachebus_used_time, 16);
PERNIX_OFFSET(CacheBusAll_InfoRec, drive_cachebus_used_time, 20);
PERNIX_OFFSET(CacheBusAll_InfoRec, drr_cachebus_used_time, 24);
PERNIX_OFFSET(CacheBusAll_InfoRec, cpu_cachebus_used_time, 28);
PERNIX_OFFSET(CacheBusAll_InfoRec, dual_cachebus_used_time, 32);

#pragma pack(push, 1)
typedef struct DriveAll_InfoRec {
  CommandAll_InfoRec drive_info;
  int32_t valid;
  int32_t support;
  int32_t not_opr_time_h;
  int32_t not_opr_time_l;
  int32_t tag_count[60];
  int32_t unload_time;
} DriveAll_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(DriveAll_InfoRec, 296);
PERNIX_OFFSET(DriveAll_InfoRec, drive_info, 0);
PERNIX_OFFSET(DriveAll_InfoRec, valid, 36);
PERNIX_OFFSET(DriveAll_InfoRec, support, 40);
PERNIX_OFFSET(DriveAll_InfoRec, not_opr_time_h, 44);
PERNIX_OFFSET(DriveAll_InfoRec, not_opr_time_l, 48);
PERNIX_OFFSET(DriveAll_InfoRec, tag_count, 52);
PERNIX_OFFSET(DriveAll_InfoRec, unload_time, 292);

#pragma pack(push, 1)
typedef struct ProcessorAll_InfoRec {
  int32_t valid;
  int32_t support;
  int32_t all_opr_time_h;
  int32_t all_opr_time_l;
  int32_t special_job_time_h;
  int32_t special_job_time_l;
  int32_t job_io_time_h;
  int32_t job_io_time_l;
  int32_t io_special_time_h;
  int32_t io_special_time_l;
  int32_t host_interrup_time_h;
  int32_t host_interrup_time_l;
  int32_t drive_interrup_time_h;
  int32_t drive_interrup_time_l;
  int32_t drr_interrup_time_h;
  int32_t drr_interrup_time_l;
  int32_t hostio_stop_time_h;
  int32_t hostio_stop_time_l;
} ProcessorAll_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(ProcessorAll_InfoRec, 72);
PERNIX_OFFSET(ProcessorAll_InfoRec, valid, 0);
PERNIX_OFFSET(ProcessorAll_InfoRec, support, 4);
PERNIX_OFFSET(ProcessorAll_InfoRec, all_opr_time_h, 8);
PERNIX_OFFSET(ProcessorAll_InfoRec, all_opr_time_l, 12);
PERNIX_OFFSET(ProcessorAll_InfoRec, special_job_time_h, 16);
PERNIX_OFFSET(ProcessorAll_InfoRec, special_job_time_l, 20);
PERNIX_OFFSET(ProcessorAll_InfoRec, job_io_time_h, 24);
PERNIX_OFFSET(ProcessorAll_InfoRec, job_io_time_l, 28);
PERNIX_OFFSET(ProcessorAll_InfoRec, io_special_time_h, 32);
PERNIX_OFFSET(ProcessorAll_InfoRec, io_special_time_l, 36);
PERNIX_OFFSET(ProcessorAll_InfoRec, host_interrup_time_h, 40);
PERNIX_OFFSET(ProcessorAll_InfoRec, host_interrup_time_l, 44);
PERNIX_OFFSET(ProcessorAll_InfoRec, drive_interrup_time_h, 48);
PERNIX_OFFSET(ProcessorAll_InfoRec, drive_interrup_time_l, 52);
PERNIX_OFFSET(ProcessorAll_InfoRec, drr_interrup_time_h, 56);
PERNIX_OFFSET(ProcessorAll_InfoRec, drr_interrup_time_l, 60);
PERNIX_OFFSET(ProcessorAll_InfoRec, hostio_stop_time_h, 64);
PERNIX_OFFSET(ProcessorAll_InfoRec, hostio_stop_time_l, 68);

#pragma pack(push, 1)
typedef struct VUCommandAll_InfoRec {
  int32_t valid;
  int32_t support;
  int32_t command_count;
  int32_t command_transfer_block_count;
  int32_t command_total_time_h;
  int32_t command_total_time_l;
  int32_t command_max_time_h;
  int32_t command_max_time_l;
} VUCommandAll_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(VUCommandAll_InfoRec, 32);
PERNIX_OFFSET(VUCommandAll_InfoRec, valid, 0);
PERNIX_OFFSET(VUCommandAll_InfoRec, support, 4);
PERNIX_OFFSET(VUCommandAll_InfoRec, command_count, 8);
PERNIX_OFFSET(VUCommandAll_InfoRec, command_transfer_block_count, 12);
PERNIX_OFFSET(VUCommandAll_InfoRec, command_total_time_h, 16);
PERNIX_OFFSET(VUCommandAll_InfoRec, command_total_time_l, 20);
PERNIX_OFFSET(VUCommandAll_InfoRec, command_max_time_h, 24);
PERNIX_OFFSET(VUCommandAll_InfoRec, command_max_time_l, 28);

#pragma pack(push, 1)
typedef struct VUError_InfoRec {
  int32_t valid;
  int32_t support;
  int32_t timeout_error_count;
} VUError_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(VUError_InfoRec, 12);
PERNIX_OFFSET(VUError_InfoRec, valid, 0);
PERNIX_OFFSET(VUError_InfoRec, support, 4);
PERNIX_OFFSET(VUError_InfoRec, timeout_error_count, 8);

#pragma pack(push, 1)
typedef struct VUDataAll_InfoRec {
  VUCommandAll_InfoRec control;
  VUCommandAll_InfoRec data_transfer;
  VUError_InfoRec error;
} VUDataAll_InfoRec;
#pragma pack(pop)
PERNIX_SIZE(VUDataAll_InfoRec, 76);
PERNIX_OFFSET(VUDataAll_InfoRec, control, 0);
PERNIX_OFFSET(VUDataAll_InfoRec, data_transfer, 32);
PERNIX_OFFSET(VUDataAll_InfoRec, error, 64);

#pragma pack(push, 1)
typedef struct PerformanceAllRec {
  int32_t valid;
  int32_t support;
  int32_t get_status;
  CommandAll_InfoRec port[4];
  CommandAll_InfoRec rg[90];
  CommandAll_InfoRec lu[4096];
  LuEx_InfoRec lu_ex[4096];
  int32_t all_cache_size;
  int32_t used_cache_size;
  int32_t used_cache_clean;
  int32_t used_cache_middle;
  int32_t used_cache_physical;
  CachePartitionAll_InfoRec cachePartition[32];
  CacheBusAll_InfoRec cachebus;
  CommandAll_InfoRec backend[8];
  DriveAll_InfoRec drive[30][15];
  ProcessorAll_InfoRec processor;
  VUDataAll_InfoRec vu_port[4];
  VUCommandAll_InfoRec vu_lu[4096];
  KXTimeRec mtime;
  int32_t err_code;
} PerformanceAllRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceAllRec, 1547412);
PERNIX_OFFSET(PerformanceAllRec, valid, 0);
PERNIX_OFFSET(PerformanceAllRec, support, 4);
PERNIX_OFFSET(PerformanceAllRec, get_status, 8);
PERNIX_OFFSET(PerformanceAllRec, port, 12);
PERNIX_OFFSET(PerformanceAllRec, rg, 156);
PERNIX_OFFSET(PerformanceAllRec, lu, 3396);
PERNIX_OFFSET(PerformanceAllRec, lu_ex, 150852);
PERNIX_OFFSET(PerformanceAllRec, all_cache_size, 1281348);
PERNIX_OFFSET(PerformanceAllRec, used_cache_size, 1281352);
PERNIX_OFFSET(PerformanceAllRec, used_cache_clean, 1281356);
PERNIX_OFFSET(PerformanceAllRec, used_cache_middle, 1281360);
PERNIX_OFFSET(PerformanceAllRec, used_cache_physical, 1281364);
PERNIX_OFFSET(PerformanceAllRec, cachePartition, 1281368);
PERNIX_OFFSET(PerformanceAllRec, cachebus, 1282392);
PERNIX_OFFSET(PerformanceAllRec, backend, 1282428);
PERNIX_OFFSET(PerformanceAllRec, drive, 1282716);
PERNIX_OFFSET(PerformanceAllRec, processor, 1415916);
PERNIX_OFFSET(PerformanceAllRec, vu_port, 1415988);
PERNIX_OFFSET(PerformanceAllRec, vu_lu, 1416292);
PERNIX_OFFSET(PerformanceAllRec, mtime, 1547364);
PERNIX_OFFSET(PerformanceAllRec, err_code, 1547408);

/* ---- output requests and the management file ---- */

#pragma pack(push, 1)
typedef struct PerformanceOutputSpecifyInfoRec {
  uint8_t port[4];
  uint8_t rg[90];
  uint8_t lu[4096];
  uint8_t cache;
  uint8_t backend[8];
  uint8_t drive[30][15];
  uint8_t processor;
  uint8_t drive_opr_rate[30][15];
} PerformanceOutputSpecifyInfoRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceOutputSpecifyInfoRec, 5100);
PERNIX_OFFSET(PerformanceOutputSpecifyInfoRec, port, 0);
PERNIX_OFFSET(PerformanceOutputSpecifyInfoRec, rg, 4);
PERNIX_OFFSET(PerformanceOutputSpecifyInfoRec, lu, 94);
PERNIX_OFFSET(PerformanceOutputSpecifyInfoRec, cache, 4190);
PERNIX_OFFSET(PerformanceOutputSpecifyInfoRec, backend, 4191);
PERNIX_OFFSET(PerformanceOutputSpecifyInfoRec, drive, 4199);
PERNIX_OFFSET(PerformanceOutputSpecifyInfoRec, processor, 4649);
PERNIX_OFFSET(PerformanceOutputSpecifyInfoRec, drive_opr_rate, 4650);

typedef struct PerformanceOutputInfoRec {
  uint8_t ctl[2];
  uint8_t pad0[2];
  PerformanceAllRec* preinfo0;
  PerformanceAllRec* afterinfo0;
  PerformanceAllRec* preinfo1;
  PerformanceAllRec* afterinfo1;
  uint8_t port[4];
  uint8_t rg[90];
  uint8_t lu[4096];
  uint8_t cache;
  uint8_t backend[8];
  uint8_t drive[30][15];
  uint8_t processor;
  uint8_t drive_opr_rate[30][15];
  char* filename;
  int32_t count;
  int32_t mode;
  int32_t file_fmt_mode;
} PerformanceOutputInfoRec;
#if PERNIX_PERF_ILP32
PERNIX_SIZE(PerformanceOutputInfoRec, 5136);
PERNIX_OFFSET(PerformanceOutputInfoRec, ctl, 0);
PERNIX_OFFSET(PerformanceOutputInfoRec, pad0, 2);
PERNIX_OFFSET(PerformanceOutputInfoRec, preinfo0, 4);
PERNIX_OFFSET(PerformanceOutputInfoRec, afterinfo0, 8);
PERNIX_OFFSET(PerformanceOutputInfoRec, preinfo1, 12);
PERNIX_OFFSET(PerformanceOutputInfoRec, afterinfo1, 16);
PERNIX_OFFSET(PerformanceOutputInfoRec, port, 20);
PERNIX_OFFSET(PerformanceOutputInfoRec, rg, 24);
PERNIX_OFFSET(PerformanceOutputInfoRec, lu, 114);
PERNIX_OFFSET(PerformanceOutputInfoRec, cache, 4210);
PERNIX_OFFSET(PerformanceOutputInfoRec, backend, 4211);
PERNIX_OFFSET(PerformanceOutputInfoRec, drive, 4219);
PERNIX_OFFSET(PerformanceOutputInfoRec, processor, 4669);
PERNIX_OFFSET(PerformanceOutputInfoRec, drive_opr_rate, 4670);
PERNIX_OFFSET(PerformanceOutputInfoRec, filename, 5120);
PERNIX_OFFSET(PerformanceOutputInfoRec, count, 5124);
PERNIX_OFFSET(PerformanceOutputInfoRec, mode, 5128);
PERNIX_OFFSET(PerformanceOutputInfoRec, file_fmt_mode, 5132);
#else
PERNIX_SIZE(PerformanceOutputInfoRec, 5168);
PERNIX_OFFSET(PerformanceOutputInfoRec, ctl, 0);
PERNIX_OFFSET(PerformanceOutputInfoRec, pad0, 2);
PERNIX_OFFSET(PerformanceOutputInfoRec, preinfo0, 8);
PERNIX_OFFSET(PerformanceOutputInfoRec, afterinfo0, 16);
PERNIX_OFFSET(PerformanceOutputInfoRec, preinfo1, 24);
PERNIX_OFFSET(PerformanceOutputInfoRec, afterinfo1, 32);
PERNIX_OFFSET(PerformanceOutputInfoRec, port, 40);
PERNIX_OFFSET(PerformanceOutputInfoRec, rg, 44);
PERNIX_OFFSET(PerformanceOutputInfoRec, lu, 134);
PERNIX_OFFSET(PerformanceOutputInfoRec, cache, 4230);
PERNIX_OFFSET(PerformanceOutputInfoRec, backend, 4231);
PERNIX_OFFSET(PerformanceOutputInfoRec, drive, 4239);
PERNIX_OFFSET(PerformanceOutputInfoRec, processor, 4689);
PERNIX_OFFSET(PerformanceOutputInfoRec, drive_opr_rate, 4690);
PERNIX_OFFSET(PerformanceOutputInfoRec, filename, 5144);
PERNIX_OFFSET(PerformanceOutputInfoRec, count, 5152);
PERNIX_OFFSET(PerformanceOutputInfoRec, mode, 5156);
PERNIX_OFFSET(PerformanceOutputInfoRec, file_fmt_mode, 5160);
#endif

typedef struct PerformanceOutputInfoExRec {
  uint8_t ctl[2];
  uint8_t pad0[2];
  PerformanceAllRec* preinfo0;
  PerformanceAllRec* afterinfo0;
  PerformanceAllRec* preinfo1;
  PerformanceAllRec* afterinfo1;
  PerformanceOutputSpecifyInfoRec specifyinfo[2];
  char* filename;
  int32_t count;
  int32_t mode;
  int32_t file_fmt_mode;
} PerformanceOutputInfoExRec;
#if PERNIX_PERF_ILP32
PERNIX_SIZE(PerformanceOutputInfoExRec, 10236);
PERNIX_OFFSET(PerformanceOutputInfoExRec, ctl, 0);
PERNIX_OFFSET(PerformanceOutputInfoExRec, pad0, 2);
PERNIX_OFFSET(PerformanceOutputInfoExRec, preinfo0, 4);
PERNIX_OFFSET(PerformanceOutputInfoExRec, afterinfo0, 8);
PERNIX_OFFSET(PerformanceOutputInfoExRec, preinfo1, 12);
PERNIX_OFFSET(PerformanceOutputInfoExRec, afterinfo1, 16);
PERNIX_OFFSET(PerformanceOutputInfoExRec, specifyinfo, 20);
PERNIX_OFFSET(PerformanceOutputInfoExRec, filename, 10220);
PERNIX_OFFSET(PerformanceOutputInfoExRec, count, 10224);
PERNIX_OFFSET(PerformanceOutputInfoExRec, mode, 10228);
PERNIX_OFFSET(PerformanceOutputInfoExRec, file_fmt_mode, 10232);
#else
PERNIX_SIZE(PerformanceOutputInfoExRec, 10264);
PERNIX_OFFSET(PerformanceOutputInfoExRec, ctl, 0);
PERNIX_OFFSET(PerformanceOutputInfoExRec, pad0, 2);
PERNIX_OFFSET(PerformanceOutputInfoExRec, preinfo0, 8);
PERNIX_OFFSET(PerformanceOutputInfoExRec, afterinfo0, 16);
PERNIX_OFFSET(PerformanceOutputInfoExRec, preinfo1, 24);
PERNIX_OFFSET(PerformanceOutputInfoExRec, afterinfo1, 32);
PERNIX_OFFSET(PerformanceOutputInfoExRec, specifyinfo, 40);
PERNIX_OFFSET(PerformanceOutputInfoExRec, filename, 10240);
PERNIX_OFFSET(PerformanceOutputInfoExRec, count, 10248);
PERNIX_OFFSET(PerformanceOutputInfoExRec, mode, 10252);
PERNIX_OFFSET(PerformanceOutputInfoExRec, file_fmt_mode, 10256);
#endif

#pragma pack(push, 1)
typedef struct PerformanceCSVOutputOptRec {
  int32_t port;
  int32_t rg;
  int32_t lu;
  int32_t cache;
  int32_t cache2;
  int32_t backend;
  int32_t drive;
  int32_t processor;
  int32_t drive_opr_rate;
  int32_t luex;
  int32_t cachepartition;
  int32_t vu_port;
  int32_t vu_lu;
} PerformanceCSVOutputOptRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCSVOutputOptRec, 52);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, port, 0);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, rg, 4);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, lu, 8);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, cache, 12);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, cache2, 16);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, backend, 20);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, drive, 24);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, processor, 28);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, drive_opr_rate, 32);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, luex, 36);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, cachepartition, 40);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, vu_port, 44);
PERNIX_OFFSET(PerformanceCSVOutputOptRec, vu_lu, 48);

typedef struct PerformanceCSVInfoRec {
  PerformanceTimeRec fromtime;
  PerformanceTimeRec totime;
  int32_t fromDataNum;
  int32_t toDataNum;
  PerformanceCSVOutputOptRec opt[2];
  char* dirname;
} PerformanceCSVInfoRec;
#if PERNIX_PERF_ILP32
PERNIX_SIZE(PerformanceCSVInfoRec, 164);
PERNIX_OFFSET(PerformanceCSVInfoRec, fromtime, 0);
PERNIX_OFFSET(PerformanceCSVInfoRec, totime, 24);
PERNIX_OFFSET(PerformanceCSVInfoRec, fromDataNum, 48);
PERNIX_OFFSET(PerformanceCSVInfoRec, toDataNum, 52);
PERNIX_OFFSET(PerformanceCSVInfoRec, opt, 56);
PERNIX_OFFSET(PerformanceCSVInfoRec, dirname, 160);
#else
PERNIX_SIZE(PerformanceCSVInfoRec, 168);
PERNIX_OFFSET(PerformanceCSVInfoRec, fromtime, 0);
PERNIX_OFFSET(PerformanceCSVInfoRec, totime, 24);
PERNIX_OFFSET(PerformanceCSVInfoRec, fromDataNum, 48);
PERNIX_OFFSET(PerformanceCSVInfoRec, toDataNum, 52);
PERNIX_OFFSET(PerformanceCSVInfoRec, opt, 56);
PERNIX_OFFSET(PerformanceCSVInfoRec, dirname, 160);
#endif

#pragma pack(push, 1)
typedef struct PerformanceMngInfoRec {
  char dampver[16];
  char unitname[65];
  char microver[9];
  char serialno[10];
  int32_t kx_type;
  int32_t device_type;
  int32_t portMaxCount;
  int32_t rgMaxCount;
  int32_t luMaxCount;
  int32_t cacheMaxCount;
  int32_t processorMaxCount;
  int32_t hdd_hdu_count;
  int32_t hdd_unit_count;
  int32_t backendMaxCount;
  int32_t cachepartitionMaxCount;
  int32_t ctlcond;
  int32_t ctl0;
  int32_t ctl1;
  int32_t intervaltime;
  int32_t cfg;
  char structver[8];
  PerformanceTimeRec fromtime;
  PerformanceTimeRec totime;
} PerformanceMngInfoRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceMngInfoRec, 220);
PERNIX_OFFSET(PerformanceMngInfoRec, dampver, 0);
PERNIX_OFFSET(PerformanceMngInfoRec, unitname, 16);
PERNIX_OFFSET(PerformanceMngInfoRec, microver, 81);
PERNIX_OFFSET(PerformanceMngInfoRec, serialno, 90);
PERNIX_OFFSET(PerformanceMngInfoRec, kx_type, 100);
PERNIX_OFFSET(PerformanceMngInfoRec, device_type, 104);
PERNIX_OFFSET(PerformanceMngInfoRec, portMaxCount, 108);
PERNIX_OFFSET(PerformanceMngInfoRec, rgMaxCount, 112);
PERNIX_OFFSET(PerformanceMngInfoRec, luMaxCount, 116);
PERNIX_OFFSET(PerformanceMngInfoRec, cacheMaxCount, 120);
PERNIX_OFFSET(PerformanceMngInfoRec, processorMaxCount, 124);
PERNIX_OFFSET(PerformanceMngInfoRec, hdd_hdu_count, 128);
PERNIX_OFFSET(PerformanceMngInfoRec, hdd_unit_count, 132);
PERNIX_OFFSET(PerformanceMngInfoRec, backendMaxCount, 136);
PERNIX_OFFSET(PerformanceMngInfoRec, cachepartitionMaxCount, 140);
PERNIX_OFFSET(PerformanceMngInfoRec, ctlcond, 144);
PERNIX_OFFSET(PerformanceMngInfoRec, ctl0, 148);
PERNIX_OFFSET(PerformanceMngInfoRec, ctl1, 152);
PERNIX_OFFSET(PerformanceMngInfoRec, intervaltime, 156);
PERNIX_OFFSET(PerformanceMngInfoRec, cfg, 160);
PERNIX_OFFSET(PerformanceMngInfoRec, structver, 164);
PERNIX_OFFSET(PerformanceMngInfoRec, fromtime, 172);
PERNIX_OFFSET(PerformanceMngInfoRec, totime, 196);

/* ---- graph data ---- */

#pragma pack(push, 1)
typedef struct PerformanceCollectGraphBaseRec {
  int32_t valid;
  int32_t iorate;
  int32_t readrate;
  int32_t writerate;
  double readhit;
  double writehit;
  int32_t transrate;
  int32_t readtransrate;
  int32_t writetransrate;
  int32_t onverirate;
} PerformanceCollectGraphBaseRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphBaseRec, 48);
PERNIX_OFFSET(PerformanceCollectGraphBaseRec, valid, 0);
PERNIX_OFFSET(PerformanceCollectGraphBaseRec, iorate, 4);
PERNIX_OFFSET(PerformanceCollectGraphBaseRec, readrate, 8);
PERNIX_OFFSET(PerformanceCollectGraphBaseRec, writerate, 12);
PERNIX_OFFSET(PerformanceCollectGraphBaseRec, readhit, 16);
PERNIX_OFFSET(PerformanceCollectGraphBaseRec, writehit, 24);
PERNIX_OFFSET(PerformanceCollectGraphBaseRec, transrate, 32);
PERNIX_OFFSET(PerformanceCollectGraphBaseRec, readtransrate, 36);
PERNIX_OFFSET(PerformanceCollectGraphBaseRec, writetransrate, 40);
PERNIX_OFFSET(PerformanceCollectGraphBaseRec, onverirate, 44);

/* One layout for the port, LU, back-end, drive and RAID-group graph entries. */
#pragma pack(push, 1)
typedef struct PerformanceCollectGraphItemRec {
  PerformanceCollectGraphBaseRec base;
} PerformanceCollectGraphItemRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphItemRec, 48);
PERNIX_OFFSET(PerformanceCollectGraphItemRec, base, 0);
typedef PerformanceCollectGraphItemRec PerformanceCollectGraphPortRec;
typedef PerformanceCollectGraphItemRec PerformanceCollectGraphLURec;
typedef PerformanceCollectGraphItemRec PerformanceCollectGraphBackendRec;
typedef PerformanceCollectGraphItemRec PerformanceCollectGraphDriveRec;
typedef PerformanceCollectGraphItemRec PerformanceCollectGraphRGRec;

#pragma pack(push, 1)
typedef struct PerformanceCollectGraphCacheRec {
  int32_t valid;
  double cachewritependingrate;
} PerformanceCollectGraphCacheRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphCacheRec, 12);
PERNIX_OFFSET(PerformanceCollectGraphCacheRec, valid, 0);
PERNIX_OFFSET(PerformanceCollectGraphCacheRec, cachewritependingrate, 4);

#pragma pack(push, 1)
typedef struct PerformanceCollectGraphProcessorRec {
  int32_t valid;
  double used_rate;
} PerformanceCollectGraphProcessorRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphProcessorRec, 12);
PERNIX_OFFSET(PerformanceCollectGraphProcessorRec, valid, 0);
PERNIX_OFFSET(PerformanceCollectGraphProcessorRec, used_rate, 4);

#pragma pack(push, 1)
typedef struct PerformanceCollectGraphDriveOprRec {
  int32_t valid;
  double operate_rate;
  int32_t tag_count;
} PerformanceCollectGraphDriveOprRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphDriveOprRec, 16);
PERNIX_OFFSET(PerformanceCollectGraphDriveOprRec, valid, 0);
PERNIX_OFFSET(PerformanceCollectGraphDriveOprRec, operate_rate, 4);
PERNIX_OFFSET(PerformanceCollectGraphDriveOprRec, tag_count, 12);

#pragma pack(push, 1)
typedef struct PerformanceCollectGraphCache2Rec {
  int32_t valid;
  double cachecleanusagerate;
  double cachemiddleusagegrate;
  double cachephysicalusagerate;
  double cachetotalusagerate;
} PerformanceCollectGraphCache2Rec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphCache2Rec, 36);
PERNIX_OFFSET(PerformanceCollectGraphCache2Rec, valid, 0);
PERNIX_OFFSET(PerformanceCollectGraphCache2Rec, cachecleanusagerate, 4);
PERNIX_OFFSET(PerformanceCollectGraphCache2Rec, cachemiddleusagegrate, 12);
PERNIX_OFFSET(PerformanceCollectGraphCache2Rec, cachephysicalusagerate, 20);
PERNIX_OFFSET(PerformanceCollectGraphCache2Rec, cachetotalusagerate, 28);

#pragma pack(push, 1)
typedef struct PerformanceCollectGraphCachePartitionRec {
  int32_t valid;
  double cachewritependingrate;
  double cachecleanusagerate;
  double cachemiddleusagegrate;
  double cachephysicalusagerate;
  double cachetotalusagerate;
} PerformanceCollectGraphCachePartitionRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphCachePartitionRec, 44);
PERNIX_OFFSET(PerformanceCollectGraphCachePartitionRec, valid, 0);
PERNIX_OFFSET(PerformanceCollectGraphCachePartitionRec, cachewritependingrate, 4);
PERNIX_OFFSET(PerformanceCollectGraphCachePartitionRec, cachecleanusagerate, 12);
PERNIX_OFFSET(PerformanceCollectGraphCachePartitionRec, cachemiddleusagegrate, 20);
PERNIX_OFFSET(PerformanceCollectGraphCachePartitionRec, cachephysicalusagerate, 28);
PERNIX_OFFSET(PerformanceCollectGraphCachePartitionRec, cachetotalusagerate, 36);

#pragma pack(push, 1)
typedef struct PerformanceCollectGraphLUExRec {
  int32_t valid;
  int32_t tag_count;
} PerformanceCollectGraphLUExRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphLUExRec, 8);
PERNIX_OFFSET(PerformanceCollectGraphLUExRec, valid, 0);
PERNIX_OFFSET(PerformanceCollectGraphLUExRec, tag_count, 4);

#pragma pack(push, 1)
typedef struct PerformanceCollectGraphVUBaseRec {
  int32_t valid;
  int32_t command_iorate;
  int32_t command_transrate;
  int32_t command_time_h;
  int32_t command_time_l;
  int32_t command_max_time_h;
  int32_t command_max_time_l;
} PerformanceCollectGraphVUBaseRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphVUBaseRec, 28);
PERNIX_OFFSET(PerformanceCollectGraphVUBaseRec, valid, 0);
PERNIX_OFFSET(PerformanceCollectGraphVUBaseRec, command_iorate, 4);
PERNIX_OFFSET(PerformanceCollectGraphVUBaseRec, command_transrate, 8);
PERNIX_OFFSET(PerformanceCollectGraphVUBaseRec, command_time_h, 12);
PERNIX_OFFSET(PerformanceCollectGraphVUBaseRec, command_time_l, 16);
PERNIX_OFFSET(PerformanceCollectGraphVUBaseRec, command_max_time_h, 20);
PERNIX_OFFSET(PerformanceCollectGraphVUBaseRec, command_max_time_l, 24);

#pragma pack(push, 1)
typedef struct PerformanceCollectGraphVUPortRec {
  PerformanceCollectGraphVUBaseRec control;
  PerformanceCollectGraphVUBaseRec data_transfer;
} PerformanceCollectGraphVUPortRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphVUPortRec, 56);
PERNIX_OFFSET(PerformanceCollectGraphVUPortRec, control, 0);
PERNIX_OFFSET(PerformanceCollectGraphVUPortRec, data_transfer, 28);

#pragma pack(push, 1)
typedef struct PerformanceCollectGraphVULURec {
  PerformanceCollectGraphVUBaseRec data_transfer;
} PerformanceCollectGraphVULURec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphVULURec, 28);
PERNIX_OFFSET(PerformanceCollectGraphVULURec, data_transfer, 0);

#pragma pack(push, 1)
typedef struct PerformanceCollectGraphRec {
  KXTimeRec mtime[2];
  PerformanceCollectGraphItemRec port[4];
  PerformanceCollectGraphItemRec lu[4096];
  PerformanceCollectGraphCacheRec cache;
  PerformanceCollectGraphItemRec backend[8];
  PerformanceCollectGraphItemRec drive[30][15];
  PerformanceCollectGraphProcessorRec processor;
  PerformanceCollectGraphDriveOprRec driveopr[30][15];
  PerformanceCollectGraphItemRec rg[90];
  PerformanceCollectGraphCache2Rec cache2;
  PerformanceCollectGraphLUExRec luex[4096];
  PerformanceCollectGraphCachePartitionRec cachepartition[32];
  PerformanceCollectGraphVUPortRec vu_port[4];
  PerformanceCollectGraphVULURec vu_lu[4096];
} PerformanceCollectGraphRec;
#pragma pack(pop)
PERNIX_SIZE(PerformanceCollectGraphRec, 379540);
PERNIX_OFFSET(PerformanceCollectGraphRec, mtime, 0);
PERNIX_OFFSET(PerformanceCollectGraphRec, port, 88);
PERNIX_OFFSET(PerformanceCollectGraphRec, lu, 280);
PERNIX_OFFSET(PerformanceCollectGraphRec, cache, 196888);
PERNIX_OFFSET(PerformanceCollectGraphRec, backend, 196900);
PERNIX_OFFSET(PerformanceCollectGraphRec, drive, 197284);
PERNIX_OFFSET(PerformanceCollectGraphRec, processor, 218884);
PERNIX_OFFSET(PerformanceCollectGraphRec, driveopr, 218896);
PERNIX_OFFSET(PerformanceCollectGraphRec, rg, 226096);
PERNIX_OFFSET(PerformanceCollectGraphRec, cache2, 230416);
PERNIX_OFFSET(PerformanceCollectGraphRec, luex, 230452);
PERNIX_OFFSET(PerformanceCollectGraphRec, cachepartition, 263220);
PERNIX_OFFSET(PerformanceCollectGraphRec, vu_port, 264628);
PERNIX_OFFSET(PerformanceCollectGraphRec, vu_lu, 264852);

typedef struct PerformanceCollectGraphInfoRec {
  PerformanceCollectGraphRec* graphinfo[2];
} PerformanceCollectGraphInfoRec;
#if PERNIX_PERF_ILP32
PERNIX_SIZE(PerformanceCollectGraphInfoRec, 8);
PERNIX_OFFSET(PerformanceCollectGraphInfoRec, graphinfo, 0);
#else
PERNIX_SIZE(PerformanceCollectGraphInfoRec, 16);
PERNIX_OFFSET(PerformanceCollectGraphInfoRec, graphinfo, 0);
#endif

typedef struct PerformanceOutputGraphInfoRec {
  PerformanceAllRec* preinfo0;
  PerformanceAllRec* afterinfo0;
  PerformanceAllRec* preinfo1;
  PerformanceAllRec* afterinfo1;
} PerformanceOutputGraphInfoRec;
#if PERNIX_PERF_ILP32
PERNIX_SIZE(PerformanceOutputGraphInfoRec, 16);
PERNIX_OFFSET(PerformanceOutputGraphInfoRec, preinfo0, 0);
PERNIX_OFFSET(PerformanceOutputGraphInfoRec, afterinfo0, 4);
PERNIX_OFFSET(PerformanceOutputGraphInfoRec, preinfo1, 8);
PERNIX_OFFSET(PerformanceOutputGraphInfoRec, afterinfo1, 12);
#else
PERNIX_SIZE(PerformanceOutputGraphInfoRec, 32);
PERNIX_OFFSET(PerformanceOutputGraphInfoRec, preinfo0, 0);
PERNIX_OFFSET(PerformanceOutputGraphInfoRec, afterinfo0, 8);
PERNIX_OFFSET(PerformanceOutputGraphInfoRec, preinfo1, 16);
PERNIX_OFFSET(PerformanceOutputGraphInfoRec, afterinfo1, 24);
#endif

/* ---- functions ---- */

PERNIX_BEGIN_DECLS

int KX_GetStatisticalInformation(const char* unit, const KXSessionInfoRec* session, int selector,
                                 StatisticalInformationRec* info);
int KX_GetPerformance(const char* unit, const KXSessionInfoRec* session, StatisticalCommandRec* ctl0,
                      StatisticalCommandRec* ctl1);
int KX_GetPerformanceAll(const char* unit, const KXSessionInfoRec* session, int a, PerformanceAllRec* ctl0,
                         PerformanceAllRec* ctl1);
int KX_GetPfmStatisCfg(const char* unit, const KXSessionInfoRec* session, int* cfg);
int KX_SetPfmStatisCfg(const char* unit, const KXSessionInfoRec* session, int cfg);
int KX_PerformanceOutput(const char* unit, const KXSessionInfoRec* session, const char* path,
                         const StatisticalCommandRec* cmd1, const StatisticalCommandRec* cmd2,
                         const StatisticalCommandRec* cmd3, const StatisticalCommandRec* cmd4);
/* lu: 4096 LU flags. */
int KX_PerformanceOutputLU(const char* unit, const KXSessionInfoRec* session, const char* path,
                           const StatisticalCommandRec* cmd1, const StatisticalCommandRec* cmd2,
                           const StatisticalCommandRec* cmd3, const StatisticalCommandRec* cmd4, int a,
                           const uint8_t* lu, int b);
int KX_PerformanceOutputAll(const char* unit, const PerformanceOutputInfoRec* info);
int KX_PerformanceOutputAllEx(const char* unit, const KXSessionInfoRec* session,
                              const PerformanceOutputInfoExRec* info);
/* The time is handed over by value, all 44 bytes. */
int KX_PerformanceOutputSkip(const char* path, int a, int b, KXTimeRec time);
int KX_PerformanceOutputCSV(const char* path, const PerformanceCSVInfoRec* info);
int KX_GetPerformanceCSVNum(const char* path, const PerformanceCSVInfoRec* info, int* count);
/* graphs: the library fills the two records the pointers lead to. */
int KX_PerformanceOutputGraphInfo(const char* unit, const KXSessionInfoRec* session,
                                  const PerformanceOutputGraphInfoRec* input,
                                  PerformanceCollectGraphInfoRec* graphs);
int KX_PerformanceDataOutput(const char* path, const PerformanceCollectGraphInfoRec* graphs);
int KX_PerformanceDataInitialize(const KXSessionInfoRec* session, const char* path,
                                 const PerformanceMngInfoRec* info);
int KX_PerformanceInputMngFile(const char* path, PerformanceMngInfoRec* info);
int KX_GetPfmFileMaxCount(int* count);

PERNIX_END_DECLS

#endif
