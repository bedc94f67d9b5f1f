// Statistics and performance output: record descriptions.
//
// Besides the shared field kinds, these records use four of their own:
//   PERF_RATE(m)           a double with two decimals <-> a fixed-point Java short
//   PERF_BYTE_ROWS(m)      uint8_t[R][C]              <-> "[[B"
//   PERF_LINKED(m, desc)   a pointer to a record the native allocates, converted
//                          from / into the single object of field m
//   PERF_LINKED_ARRAY(m, desc)  N such pointers <-> an array of N objects
//   PERF_LINKED_TEXT(m)    a pointer to a 1024-byte file-name buffer <-> String m
// A linked record is converted only when its pointer is set; the natives set
// the pointers (perf/kinds.h) before they convert the request.
#pragma once

#include <type_traits>

#include "core/native.h"
#include "perf.h"

namespace kx::perf {

// Size of the buffer behind a PERF_LINKED_TEXT pointer.
inline constexpr uint32_t kLinkedTextSize = PERNIX_PATH_SIZE;

int read_rate(JNIEnv* env, jobject obj, const Field& f, void* rec);
int write_rate(JNIEnv* env, jobject obj, const Field& f, const void* rec);
int read_byte_rows(JNIEnv* env, jobject obj, const Field& f, void* rec);
int read_linked(JNIEnv* env, jobject obj, const Field& f, void* rec);
int write_linked(JNIEnv* env, jobject obj, const Field& f, const void* rec);
int read_linked_array(JNIEnv* env, jobject obj, const Field& f, void* rec);
int write_linked_array(JNIEnv* env, jobject obj, const Field& f, const void* rec);
int read_linked_text(JNIEnv* env, jobject obj, const Field& f, void* rec);

template <typename M>
constexpr Field rate(const char* name, size_t offset) {
  static_assert(std::is_same_v<M, double>, "rates are doubles");
  return Field{name, Kind::Custom, true, static_cast<uint32_t>(offset), 1, 0, 0, nullptr,
               read_rate, write_rate};
}

template <typename M>
constexpr Field byte_rows(const char* name, size_t offset) {
  static_assert(std::rank_v<M> == 2 && sizeof(std::remove_all_extents_t<M>) == 1);
  return Field{name, Kind::Custom, true, static_cast<uint32_t>(offset),
               static_cast<uint32_t>(std::extent_v<M, 0>), static_cast<uint32_t>(std::extent_v<M, 1>),
               0, nullptr, read_byte_rows, nullptr};
}

template <typename M, typename E>
constexpr Field linked(const char* name, size_t offset, const Desc<E>& elem) {
  static_assert(std::is_same_v<M, E*>, "the member must point to the described record");
  return Field{name, Kind::Custom, true, static_cast<uint32_t>(offset), 1, 0, sizeof(E*), &elem,
               read_linked, write_linked};
}

template <typename M, typename E>
constexpr Field linked_array(const char* name, size_t offset, const Desc<E>& elem) {
  static_assert(std::rank_v<M> == 1 && std::is_same_v<std::remove_all_extents_t<M>, E*>,
                "the member must hold pointers to the described record");
  return Field{name, Kind::Custom, true, static_cast<uint32_t>(offset),
               static_cast<uint32_t>(std::extent_v<M>), 0, sizeof(E*), &elem, read_linked_array,
               write_linked_array};
}

template <typename M>
constexpr Field linked_text(const char* name, size_t offset) {
  static_assert(std::is_same_v<M, char*>, "a file-name member is a char pointer");
  return Field{name, Kind::Custom, true, static_cast<uint32_t>(offset), kLinkedTextSize, 0,
               sizeof(char*), nullptr, read_linked_text, nullptr};
}

}  // namespace kx::perf

#define PERF_RATE(m) ::kx::perf::rate<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m))
#define PERF_BYTE_ROWS(m) ::kx::perf::byte_rows<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m))
#define PERF_LINKED(m, desc) ::kx::perf::linked<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m), desc)
#define PERF_LINKED_ARRAY(m, desc) \
  ::kx::perf::linked_array<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m), desc)
#define PERF_LINKED_TEXT(m) ::kx::perf::linked_text<KX_MEMBER_T(m)>(#m, offsetof(kx_rec_t, m))

// ---- statistical information

KX_RECORD(StatisticalController, StatisticalControllerRec,
          KX_INT(power_on),
          KX_INT(reset),
          KX_INT(total_time),
          KX_INT(on_time),
          KX_INT(total_time_rap_cnt),
          KX_INT(total_time_rap_cnt_work),
          KX_INT(lu_change),
          KX_INTS(procnt_time));
KX_CONVERTERS(StatisticalController, StatisticalController, StatisticalControllerRec)

KX_RECORD(StatisticalHostCommand_Info, StatisticalHostCommand_InfoRec,
          KX_INT(read_count),
          KX_INT(write_count));
KX_CONVERTERS(StatisticalHostCommand_Info, StatisticalHostCommand_Info, StatisticalHostCommand_InfoRec)

KX_RECORD(StatisticalHostCommand, StatisticalHostCommandRec,
          KX_RECORDS(lu, kx::rec::StatisticalHostCommand_Info));
KX_CONVERTERS(StatisticalHostCommand, StatisticalHostCommand, StatisticalHostCommandRec)

KX_RECORD(StatisticalCommandStatus_Info, StatisticalCommandStatus_InfoRec,
          KX_INT(r_cache),
          KX_INT(w_cache),
          KX_INT(seq_r),
          KX_INT(seq_w),
          KX_INT(pre_exec),
          KX_INT(w_through),
          KX_INT(re_asign),
          KX_INT(rd_miss),
          KX_INT(wr_spl));
KX_CONVERTERS(StatisticalCommandStatus_Info, StatisticalCommandStatus_Info, StatisticalCommandStatus_InfoRec)

KX_RECORD(StatisticalCommandStatus, StatisticalCommandStatusRec,
          KX_RECORDS(lu, kx::rec::StatisticalCommandStatus_Info));
KX_CONVERTERS(StatisticalCommandStatus, StatisticalCommandStatus, StatisticalCommandStatusRec)

KX_RECORD(StatisticalCachePartition, StatisticalCachePartitionRec,
          KX_INT(wrt_inhcnt),
          KX_INT(wrt_outhcnt),
          KX_INT(seqwr_bufcnt),
          KX_INT(seg_lock_cnt));
KX_CONVERTERS(StatisticalCachePartition, StatisticalCachePartition, StatisticalCachePartitionRec)

KX_RECORD(StatisticalCache, StatisticalCacheRec,
          KX_INT(wrt_inhcnt),
          KX_INT(wrt_outhcnt),
          KX_INT(seqwr_bufcnt),
          KX_INT(seg_lock_cnt),
          KX_RECORDS(cachepartition, kx::rec::StatisticalCachePartition));
KX_CONVERTERS(StatisticalCache, StatisticalCache, StatisticalCacheRec)

KX_RECORD(StatisticalWriteAfter_PDEVInfo, StatisticalWriteAfter_PDEVInfoRec,
          KX_INT(gather_prc_cnt),
          KX_INT(gather_max),
          KX_INT(gather_min),
          KX_INT(gather_cnt));
KX_CONVERTERS(StatisticalWriteAfter_PDEVInfo, StatisticalWriteAfter_PDEVInfo, StatisticalWriteAfter_PDEVInfoRec)

KX_RECORD(StatisticalWriteAfter, StatisticalWriteAfterRec,
          KX_INT(raid0_stripe_cnt),
          KX_INTS2(raid0_stripe_job),
          KX_INT(raid5_stripe_cnt),
          KX_INTS2(raid5_stripe_job),
          KX_INTS2(stripe_job_rmw),
          KX_INTS2(stripe_job_partial),
          KX_RECORDS2(pdev, kx::rec::StatisticalWriteAfter_PDEVInfo));
KX_CONVERTERS(StatisticalWriteAfter, StatisticalWriteAfter, StatisticalWriteAfterRec)

KX_RECORD(StatisticalDriveRestoration, StatisticalDriveRestorationRec,
          KX_INT(inter_cnt),
          KX_INT(back_cnt),
          KX_INT(system_cnt));
KX_CONVERTERS(StatisticalDriveRestoration, StatisticalDriveRestoration, StatisticalDriveRestorationRec)

KX_RECORD(StatisticalCacheMemory, StatisticalCacheMemoryRec,
          KX_INT(battery),
          KX_INT(threshold),
          KX_INTS(correct_err),
          KX_INTS2(segment));
KX_CONVERTERS(StatisticalCacheMemory, StatisticalCacheMemory, StatisticalCacheMemoryRec)

KX_RECORD(StatisticalDrive_Info, StatisticalDrive_InfoRec,
          KX_INT(d_had_rec),
          KX_INT(d_had_urec),
          KX_INT(d_med_rec),
          KX_INT(d_med_urec),
          KX_INT(d_rw_rec),
          KX_INT(d_rw_urec),
          KX_INT(d_drive_rec),
          KX_INT(d_drive_urec),
          KX_INT(d_crhd_rec),
          KX_INT(d_crhd_urec),
          KX_INT(d_scsi_rec),
          KX_INT(d_scsi_urec),
          KX_INT(ov_correct_err),
          KX_INT(ov_uncorrect_err),
          KX_INT(ov_restor_cnt),
          KX_INTS(drv_port_err),
          KX_INTS(link_failre));
KX_CONVERTERS(StatisticalDrive_Info, StatisticalDrive_Info, StatisticalDrive_InfoRec)

KX_RECORD(StatisticalDrive, StatisticalDriveRec,
          KX_INT(err_rtry),
          KX_RECORDS2(drive, kx::rec::StatisticalDrive_Info));
KX_CONVERTERS(StatisticalDrive, StatisticalDrive, StatisticalDriveRec)

KX_RECORD(StatisticalHostSpc_Info, StatisticalHostSpc_InfoRec,
          KX_INT(retry),
          KX_INT(err_threshold),
          KX_INT(err_count));
KX_CONVERTERS(StatisticalHostSpc_Info, StatisticalHostSpc_Info, StatisticalHostSpc_InfoRec)

KX_RECORD(StatisticalHostSpc, StatisticalHostSpcRec,
          KX_RECORDS(port, kx::rec::StatisticalHostSpc_Info));
KX_CONVERTERS(StatisticalHostSpc, StatisticalHostSpc, StatisticalHostSpcRec)

KX_RECORD(StatisticalDriveSpc, StatisticalDriveSpcRec,
          KX_INT(retry),
          KX_INT(err_threshold),
          KX_INTS(err_count));
KX_CONVERTERS(StatisticalDriveSpc, StatisticalDriveSpc, StatisticalDriveSpcRec)

KX_RECORD(StatisticalDriveFpc_Info, StatisticalDriveFpc_InfoRec,
          KX_INT(normal_fpc_err),
          KX_INT(alternate_fpc_err),
          KX_INT(normal_link_err),
          KX_INT(alternate_link_err),
          KX_INT(normal_link_fail),
          KX_INT(alternate_link_fail));
KX_CONVERTERS(StatisticalDriveFpc_Info, StatisticalDriveFpc_Info, StatisticalDriveFpc_InfoRec)

KX_RECORD(StatisticalDriveFpc, StatisticalDriveFpcRec,
          KX_RECORDS(fpc, kx::rec::StatisticalDriveFpc_Info));
KX_CONVERTERS(StatisticalDriveFpc, StatisticalDriveFpc, StatisticalDriveFpcRec)

KX_RECORD(StatisticalDriveDma_Error, StatisticalDriveDma_ErrorRec,
          KX_INT(dma_error),
          KX_INT(drr_error),
          KX_INT(bus_error),
          KX_INT(la_error));
KX_CONVERTERS(StatisticalDriveDma_Error, StatisticalDriveDma_Error, StatisticalDriveDma_ErrorRec)

KX_RECORD(StatisticalDriveDma, StatisticalDriveDmaRec,
          KX_INT(dma_retry),
          KX_INT(dma_path_retry),
          KX_INT(drr_retry),
          KX_RECORDS(error, kx::rec::StatisticalDriveDma_Error));
KX_CONVERTERS(StatisticalDriveDma, StatisticalDriveDma, StatisticalDriveDmaRec)

KX_RECORD(StatisticalHostDma, StatisticalHostDmaRec,
          KX_INT(err_rtry),
          KX_INT(dma_errcnt),
          KX_INT(bus_errcnt),
          KX_INT(la_errcnt));
KX_CONVERTERS(StatisticalHostDma, StatisticalHostDma, StatisticalHostDmaRec)

KX_RECORD(StatisticalHontai, StatisticalHontaiRec,
          KX_INT(pctl_err),
          KX_INT(pci_err),
          KX_INT(mpu_err),
          KX_INT(dctl_err),
          KX_INT(bridge_err),
          KX_INT(ps),
          KX_INT(fan),
          KX_INT(upst),
          KX_INT(ac_inbox),
          KX_INT(backup_power),
          KX_INT(auto_reset),
          KX_INT(auto_reboot),
          KX_INT(ectl_err));
KX_CONVERTERS(StatisticalHontai, StatisticalHontai, StatisticalHontaiRec)

KX_RECORD(StatisticalShuuhen, StatisticalShuuhenRec,
          KX_INT(panel),
          KX_INT(fdd),
          KX_INT(rs232c),
          KX_INT(lan));
KX_CONVERTERS(StatisticalShuuhen, StatisticalShuuhen, StatisticalShuuhenRec)

KX_RECORD(StatisticalDual, StatisticalDualRec,
          KX_INT(other_correct),
          KX_INT(other_dual),
          KX_INT(self_dual));
KX_CONVERTERS(StatisticalDual, StatisticalDual, StatisticalDualRec)

KX_RECORD(StatisticalFibre_Info, StatisticalFibre_InfoRec,
          KX_INT(tbl_id),
          KX_INT(ube),
          KX_INT(der),
          KX_INT(per),
          KX_INT(dpe),
          KX_INT(see),
          KX_INT(rma),
          KX_INT(rta),
          KX_INT(sta),
          KX_INT(mdpe),
          KX_INT(ope),
          KX_INT(ipe),
          KX_INT(flt),
          KX_INT(os),
          KX_INT(ls),
          KX_INT(drs),
          KX_INT(lpe),
          KX_INT(lpb),
          KX_INT(ols),
          KX_INT(lst),
          KX_INT(lpf),
          KX_INT(ba),
          KX_INT(lf),
          KX_INT(ce),
          KX_INT(ew),
          KX_INT(lup),
          KX_INT(ldn),
          KX_INT(loss_of_sig),
          KX_INT(bad_rx_char),
          KX_INT(loss_of_sync),
          KX_INT(link_fail),
          KX_INT(rx_eofa),
          KX_INT(dis_frm),
          KX_INT(bad_crc),
          KX_INT(proto_err),
          KX_INT(sest_lru),
          KX_INT(dis_frm_cnt),
          KX_INT(pes),
          KX_INT(rfpe),
          KX_INT(wfpe),
          KX_INT(pesc),
          KX_INT(peid),
          KX_INT(peod),
          KX_INT(ape),
          KX_INT(sbce),
          KX_INT(rbce),
          KX_INT(dte),
          KX_INT(mie),
          KX_INT(ssdr),
          KX_INT(rsce),
          KX_INT(usc),
          KX_INT(scd),
          KX_INT(softrst),
          KX_INT(ill_frame),
          KX_INT(rstp),
          KX_INT(logo),
          KX_INT(implogo),
          KX_INT(tprlo),
          KX_INT(abts),
          KX_INT(trs),
          KX_INT(cts),
          KX_INT(ats),
          KX_INT(frsv),
          KX_INT(trs_spread),
          KX_INT(rstlip_syori),
          KX_INT(lur),
          KX_INT(lur_spread),
          KX_INT(tprlo_spread),
          KX_INT(clearaca));
KX_CONVERTERS(StatisticalFibre_Info, StatisticalFibre_Info, StatisticalFibre_InfoRec)

KX_RECORD(StatisticalFibre, StatisticalFibreRec,
          KX_RECORDS(Install, kx::rec::StatisticalFibre_Info),
          KX_RECORDS(Pson, kx::rec::StatisticalFibre_Info));
KX_CONVERTERS(StatisticalFibre, StatisticalFibre, StatisticalFibreRec)

KX_RECORD(StatisticalUnit, StatisticalUnitRec,
          KX_INT(battery),
          KX_INT(ps),
          KX_INT(fan),
          KX_INT(upst),
          KX_INT(backup_power));
KX_CONVERTERS(StatisticalUnit, StatisticalUnit, StatisticalUnitRec)

KX_RECORD(StatisticalDriveError_LimitInfo, StatisticalDriveError_LimitInfoRec,
          KX_INT(limit_had_rec),
          KX_INT(limit_had_urec),
          KX_INT(limit_med_rec),
          KX_INT(limit_med_urec),
          KX_INT(limit_rw_rec),
          KX_INT(limit_rw_urec),
          KX_INT(limit_drive_rec),
          KX_INT(limit_drive_urec),
          KX_INT(limit_crhd_rec),
          KX_INT(limit_crhd_urec),
          KX_INT(limit_scsi_rec),
          KX_INT(limit_scsi_urec),
          KX_INT(limit_ov_corerr),
          KX_INT(limit_ov_ucorerr),
          KX_INT(limit_drive_port));
KX_CONVERTERS(StatisticalDriveError_LimitInfo, StatisticalDriveError_LimitInfo, StatisticalDriveError_LimitInfoRec)

KX_RECORD(StatisticalDriveError_Info, StatisticalDriveError_InfoRec,
          KX_INT(drv_on_time),
          KX_INT(had_rec_limit),
          KX_INT(had_urec_limit),
          KX_INT(med_rec_limit),
          KX_INT(med_urec_limit),
          KX_INT(rw_rec_limit),
          KX_INT(rw_urec_limit),
          KX_INT(drive_rec_limit),
          KX_INT(drive_urec_limit),
          KX_INT(crhd_rec_limit),
          KX_INT(crhd_urec_limit),
          KX_INT(scsi_rec_limit),
          KX_INT(scsi_urec_limit),
          KX_INT(ov_corerr_limit),
          KX_INT(ov_ucorerr_limit),
          KX_INTS(drive_port_limit1),
          KX_INTS(drive_port_limit2),
          KX_INTS(drive_port_limit3));
KX_CONVERTERS(StatisticalDriveError_Info, StatisticalDriveError_Info, StatisticalDriveError_InfoRec)

KX_RECORD(StatisticalDriveError, StatisticalDriveErrorRec,
          KX_NESTED(limit, kx::rec::StatisticalDriveError_LimitInfo),
          KX_RECORDS2(drive, kx::rec::StatisticalDriveError_Info));
KX_CONVERTERS(StatisticalDriveError, StatisticalDriveError, StatisticalDriveErrorRec)

KX_RECORD(StatisticalInformation, StatisticalInformationRec,
          KX_INT(unite_option),
          KX_RECORDS(controller, kx::rec::StatisticalController),
          KX_RECORDS(h_command, kx::rec::StatisticalHostCommand),
          KX_RECORDS(h_command_unite, kx::rec::StatisticalHostCommand),
          KX_RECORDS(com_status, kx::rec::StatisticalCommandStatus),
          KX_RECORDS(com_status_unite, kx::rec::StatisticalCommandStatus),
          KX_RECORDS(cache, kx::rec::StatisticalCache),
          KX_RECORDS(writeafter, kx::rec::StatisticalWriteAfter),
          KX_RECORDS(drive_rest, kx::rec::StatisticalDriveRestoration),
          KX_RECORDS(cache_mem, kx::rec::StatisticalCacheMemory),
          KX_RECORDS(drive, kx::rec::StatisticalDrive),
          KX_RECORDS(h_spc, kx::rec::StatisticalHostSpc),
          KX_RECORDS(d_spc, kx::rec::StatisticalDriveSpc),
          KX_RECORDS(d_fpc, kx::rec::StatisticalDriveFpc),
          KX_RECORDS(d_dma, kx::rec::StatisticalDriveDma),
          KX_RECORDS(h_dma, kx::rec::StatisticalHostDma),
          KX_RECORDS(hontai, kx::rec::StatisticalHontai),
          KX_RECORDS(shuuhen, kx::rec::StatisticalShuuhen),
          KX_RECORDS(dual, kx::rec::StatisticalDual),
          KX_RECORDS(fibre, kx::rec::StatisticalFibre),
          KX_RECORDS(unit, kx::rec::StatisticalUnit),
          KX_RECORDS(drive_err, kx::rec::StatisticalDriveError));
KX_CONVERTERS(StatisticalInformation, StatisticalInformation, StatisticalInformationRec)

// ---- performance snapshots

KX_RECORD(KXTime, KXTimeRec,
          KX_INT(tm_sec),
          KX_INT(tm_min),
          KX_INT(tm_hour),
          KX_INT(tm_mday),
          KX_INT(tm_mon),
          KX_INT(tm_year),
          KX_INT(tm_wday),
          KX_INT(tm_yday),
          KX_INT(tm_isdst));
KX_CONVERTERS(KXTime, KXTime, KXTimeRec)

KX_RECORD(PerformanceTime, PerformanceTimeRec,
          KX_INT(year),
          KX_INT(month),
          KX_INT(day),
          KX_INT(hour),
          KX_INT(minute),
          KX_INT(second));
KX_CONVERTERS(PerformanceTime, PerformanceTime, PerformanceTimeRec)

KX_RECORD(StatisticalCommand_Info, StatisticalCommand_InfoRec,
          KX_INT(read_count),
          KX_INT(write_count),
          KX_INT(read_cache),
          KX_INT(write_cache));
KX_CONVERTERS(StatisticalCommand_Info, StatisticalCommand_Info, StatisticalCommand_InfoRec)

KX_RECORD(StatisticalCommand, StatisticalCommandRec,
          KX_RECORDS(lu, kx::rec::StatisticalCommand_Info),
          KX_NESTED(mtime, kx::rec::KXTime));
KX_CONVERTERS(StatisticalCommand, StatisticalCommand, StatisticalCommandRec)

KX_RECORD(CommandAll_Info, CommandAll_InfoRec,
          KX_INT(valid),
          KX_INT(support),
          KX_INT(read_count),
          KX_INT(write_count),
          KX_INT(read_cache),
          KX_INT(write_cache),
          KX_INT(read_size),
          KX_INT(write_size),
          KX_INT(online_verify_count));
KX_CONVERTERS(CommandAll_Info, CommandAll_Info, CommandAll_InfoRec)

KX_RECORD(LuEx_CommandInfo, LuEx_CommandInfoRec,
          KX_INT(valid),
          KX_INT(support),
          KX_INT(command_count),
          KX_INT(command_total_time_h),
          KX_INT(command_total_time_l),
          KX_INT(command_max_time_h),
          KX_INT(command_max_time_l),
          KX_INT(delay_command_count_upto300),
          KX_INT(delay_command_count_upto500),
          KX_INT(delay_command_count_upto1000),
          KX_INT(delay_command_count_ormore1000));
KX_CONVERTERS(LuEx_CommandInfo, LuEx_CommandInfo, LuEx_CommandInfoRec)

KX_RECORD(LuEx_Info, LuEx_InfoRec,
          KX_INT(valid),
          KX_INT(support),
          KX_NESTED(read_hit, kx::rec::LuEx_CommandInfo),
          KX_NESTED(write_hit, kx::rec::LuEx_CommandInfo),
          KX_NESTED(read_miss, kx::rec::LuEx_CommandInfo),
          KX_NESTED(write_miss, kx::rec::LuEx_CommandInfo),
          KX_NESTED(read_job, kx::rec::LuEx_CommandInfo),
          KX_NESTED(write_job, kx::rec::LuEx_CommandInfo),
          KX_INT(tag_count));
KX_CONVERTERS(LuEx_Info, LuEx_Info, LuEx_InfoRec)

KX_RECORD(CachePartitionAll_Info, CachePartitionAll_InfoRec,
          KX_INT(valid),
          KX_INT(support),
          KX_INT(partition_valid),
          KX_INT(partition_cache_size),
          KX_INT(used_cache_size),
          KX_INT(used_cache_clean),
          KX_INT(used_cache_middle),
          KX_INT(used_cache_physical));
KX_CONVERTERS(CachePartitionAll_Info, CachePartitionAll_Info, CachePartitionAll_InfoRec)

KX_RECORD(CacheBusAll_Info, CacheBusAll_InfoRec,
          KX_INT(valid),
          KX_INT(support),
          KX_INT(cachebus_monitoring_time),
          KX_INT(cachebus_used_time),
          KX_INT(host_cachebus_used_time),
          KX_INT(drive_cachebus_used_time),
          KX_INT(drr_cachebus_used_time),
          KX_INT(cpu_cachebus_used_time),
          KX_INT(dual_cachebus_used_time));
KX_CONVERTERS(CacheBusAll_Info, CacheBusAll_Info, CacheBusAll_InfoRec)

KX_RECORD(DriveAll_Info, DriveAll_InfoRec,
          KX_NESTED(drive_info, kx::rec::CommandAll_Info),
          KX_INT(valid),
          KX_INT(support),
          KX_INT(not_opr_time_h),
          KX_INT(not_opr_time_l),
          KX_INTS(tag_count),
          KX_INT(unload_time));
KX_CONVERTERS(DriveAll_Info, DriveAll_Info, DriveAll_InfoRec)

KX_RECORD(ProcessorAll_Info, ProcessorAll_InfoRec,
          KX_INT(valid),
          KX_INT(support),
          KX_INT(all_opr_time_h),
          KX_INT(all_opr_time_l),
          KX_INT(special_job_time_h),
          KX_INT(special_job_time_l),
          KX_INT(job_io_time_h),
          KX_INT(job_io_time_l),
          KX_INT(io_special_time_h),
          KX_INT(io_special_time_l),
          KX_INT(host_interrup_time_h),
          KX_INT(host_interrup_time_l),
          KX_INT(drive_interrup_time_h),
          KX_INT(drive_interrup_time_l),
          KX_INT(drr_interrup_time_h),
          KX_INT(drr_interrup_time_l),
          KX_INT(hostio_stop_time_h),
          KX_INT(hostio_stop_time_l));
KX_CONVERTERS(ProcessorAll_Info, ProcessorAll_Info, ProcessorAll_InfoRec)

KX_RECORD(VUCommandAll_Info, VUCommandAll_InfoRec,
          KX_INT(valid),
          KX_INT(support),
          KX_INT(command_count),
          KX_INT(command_transfer_block_count),
          KX_INT(command_total_time_h),
          KX_INT(command_total_time_l),
          KX_INT(command_max_time_h),
          KX_INT(command_max_time_l));
KX_CONVERTERS(VUCommandAll_Info, VUCommandAll_Info, VUCommandAll_InfoRec)

KX_RECORD(VUError_Info, VUError_InfoRec,
          KX_INT(valid),
          KX_INT(support),
          KX_INT(timeout_error_count));
KX_CONVERTERS(VUError_Info, VUError_Info, VUError_InfoRec)

KX_RECORD(VUDataAll_Info, VUDataAll_InfoRec,
          KX_NESTED(control, kx::rec::VUCommandAll_Info),
          KX_NESTED(data_transfer, kx::rec::VUCommandAll_Info),
          KX_NESTED(error, kx::rec::VUError_Info));
KX_CONVERTERS(VUDataAll_Info, VUDataAll_Info, VUDataAll_InfoRec)

KX_RECORD(PerformanceAll, PerformanceAllRec,
          KX_INT(valid),
          KX_INT(support),
          KX_INT(get_status),
          KX_RECORDS(port, kx::rec::CommandAll_Info),
          KX_RECORDS(rg, kx::rec::CommandAll_Info),
          KX_RECORDS(lu, kx::rec::CommandAll_Info),
          KX_RECORDS(lu_ex, kx::rec::LuEx_Info),
          KX_INT(all_cache_size),
          KX_INT(used_cache_size),
          KX_INT(used_cache_clean),
          KX_INT(used_cache_middle),
          KX_INT(used_cache_physical),
          KX_RECORDS(cachePartition, kx::rec::CachePartitionAll_Info),
          KX_NESTED(cachebus, kx::rec::CacheBusAll_Info),
          KX_RECORDS(backend, kx::rec::CommandAll_Info),
          KX_RECORDS2(drive, kx::rec::DriveAll_Info),
          KX_NESTED(processor, kx::rec::ProcessorAll_Info),
          KX_RECORDS(vu_port, kx::rec::VUDataAll_Info),
          KX_RECORDS(vu_lu, kx::rec::VUCommandAll_Info),
          KX_NESTED(mtime, kx::rec::KXTime),
          KX_INT(err_code));
KX_CONVERTERS(PerformanceAll, PerformanceAll, PerformanceAllRec)

// ---- output requests and the management file

KX_RECORD(PerformanceOutputSpecifyInfo, PerformanceOutputSpecifyInfoRec,
          KX_BYTES(port),
          KX_BYTES(rg),
          KX_BYTES(lu),
          KX_BYTE(cache),
          KX_BYTES(backend),
          PERF_BYTE_ROWS(drive),
          KX_BYTE(processor),
          PERF_BYTE_ROWS(drive_opr_rate));
KX_READER(PerformanceOutputSpecifyInfo, PerformanceOutputSpecifyInfo, PerformanceOutputSpecifyInfoRec)

// The file name is taken first, before the rest of the request.
KX_RECORD(PerformanceOutputInfo, PerformanceOutputInfoRec,
          PERF_LINKED_TEXT(filename),
          KX_BYTES(ctl),
          PERF_LINKED(preinfo0, kx::rec::PerformanceAll),
          PERF_LINKED(afterinfo0, kx::rec::PerformanceAll),
          PERF_LINKED(preinfo1, kx::rec::PerformanceAll),
          PERF_LINKED(afterinfo1, kx::rec::PerformanceAll),
          KX_BYTES(port),
          KX_BYTES(rg),
          KX_BYTES(lu),
          KX_BYTE(cache),
          KX_BYTES(backend),
          PERF_BYTE_ROWS(drive),
          KX_BYTE(processor),
          PERF_BYTE_ROWS(drive_opr_rate),
          KX_INT(count),
          KX_INT(mode),
          KX_INT(file_fmt_mode));
KX_READER(PerformanceOutputInfo, PerformanceOutputInfo, PerformanceOutputInfoRec)

// The file name is taken first, before the rest of the request.
KX_RECORD(PerformanceOutputInfoEx, PerformanceOutputInfoExRec,
          PERF_LINKED_TEXT(filename),
          KX_BYTES(ctl),
          PERF_LINKED(preinfo0, kx::rec::PerformanceAll),
          PERF_LINKED(afterinfo0, kx::rec::PerformanceAll),
          PERF_LINKED(preinfo1, kx::rec::PerformanceAll),
          PERF_LINKED(afterinfo1, kx::rec::PerformanceAll),
          KX_RECORDS(specifyinfo, kx::rec::PerformanceOutputSpecifyInfo),
          KX_INT(count),
          KX_INT(mode),
          KX_INT(file_fmt_mode));
KX_READER(PerformanceOutputInfoEx, PerformanceOutputInfoEx, PerformanceOutputInfoExRec)

KX_RECORD(PerformanceCSVOutputOpt, PerformanceCSVOutputOptRec,
          KX_INT(port),
          KX_INT(rg),
          KX_INT(lu),
          KX_INT(cache),
          KX_INT(cache2),
          KX_INT(backend),
          KX_INT(drive),
          KX_INT(processor),
          KX_INT(drive_opr_rate),
          KX_INT(luex),
          KX_INT(cachepartition),
          KX_INT(vu_port),
          KX_INT(vu_lu));
KX_CONVERTERS(PerformanceCSVOutputOpt, PerformanceCSVOutputOpt, PerformanceCSVOutputOptRec)

KX_RECORD(PerformanceCSVInfo, PerformanceCSVInfoRec,
          KX_NESTED(fromtime, kx::rec::PerformanceTime),
          KX_NESTED(totime, kx::rec::PerformanceTime),
          KX_INT(fromDataNum),
          KX_INT(toDataNum),
          KX_RECORDS(opt, kx::rec::PerformanceCSVOutputOpt),
          PERF_LINKED_TEXT(dirname));
KX_READER(PerformanceCSVInfo, PerformanceCSVInfo, PerformanceCSVInfoRec)

KX_RECORD(PerformanceMngInfo, PerformanceMngInfoRec,
          KX_STRING(dampver),
          KX_STRING(unitname),
          KX_STRING(microver),
          KX_STRING(serialno),
          KX_INT(kx_type),
          KX_INT(device_type),
          KX_INT(portMaxCount),
          KX_INT(rgMaxCount),
          KX_INT(luMaxCount),
          KX_INT(cacheMaxCount),
          KX_INT(processorMaxCount),
          KX_INT(hdd_hdu_count),
          KX_INT(hdd_unit_count),
          KX_INT(backendMaxCount),
          KX_INT(cachepartitionMaxCount),
          KX_INT(ctlcond),
          KX_INT(ctl0),
          KX_INT(ctl1),
          KX_INT(intervaltime),
          KX_INT(cfg),
          KX_STRING(structver),
          KX_NESTED(fromtime, kx::rec::PerformanceTime),
          KX_NESTED(totime, kx::rec::PerformanceTime));
KX_CONVERTERS(PerformanceMngInfo, PerformanceMngInfo, PerformanceMngInfoRec)

// ---- graph data

KX_RECORD(PerformanceCollectGraphBase, PerformanceCollectGraphBaseRec,
          KX_INT(valid),
          KX_INT(iorate),
          KX_INT(readrate),
          KX_INT(writerate),
          PERF_RATE(readhit),
          PERF_RATE(writehit),
          KX_INT(transrate),
          KX_INT(readtransrate),
          KX_INT(writetransrate),
          KX_INT(onverirate));
KX_CONVERTERS(PerformanceCollectGraphBase, PerformanceCollectGraphBase, PerformanceCollectGraphBaseRec)

KX_RECORD(PerformanceCollectGraphPort, PerformanceCollectGraphPortRec,
          KX_NESTED(base, kx::rec::PerformanceCollectGraphBase));
KX_CONVERTERS(PerformanceCollectGraphPort, PerformanceCollectGraphPort, PerformanceCollectGraphPortRec)

KX_RECORD(PerformanceCollectGraphLU, PerformanceCollectGraphLURec,
          KX_NESTED(base, kx::rec::PerformanceCollectGraphBase));
KX_CONVERTERS(PerformanceCollectGraphLU, PerformanceCollectGraphLU, PerformanceCollectGraphLURec)

KX_RECORD(PerformanceCollectGraphBackend, PerformanceCollectGraphBackendRec,
          KX_NESTED(base, kx::rec::PerformanceCollectGraphBase));
KX_CONVERTERS(PerformanceCollectGraphBackend, PerformanceCollectGraphBackend, PerformanceCollectGraphBackendRec)

KX_RECORD(PerformanceCollectGraphDrive, PerformanceCollectGraphDriveRec,
          KX_NESTED(base, kx::rec::PerformanceCollectGraphBase));
KX_CONVERTERS(PerformanceCollectGraphDrive, PerformanceCollectGraphDrive, PerformanceCollectGraphDriveRec)

KX_RECORD(PerformanceCollectGraphRG, PerformanceCollectGraphRGRec,
          KX_NESTED(base, kx::rec::PerformanceCollectGraphBase));
KX_CONVERTERS(PerformanceCollectGraphRG, PerformanceCollectGraphRG, PerformanceCollectGraphRGRec)

KX_RECORD(PerformanceCollectGraphCache, PerformanceCollectGraphCacheRec,
          KX_INT(valid),
          PERF_RATE(cachewritependingrate));
KX_CONVERTERS(PerformanceCollectGraphCache, PerformanceCollectGraphCache, PerformanceCollectGraphCacheRec)

KX_RECORD(PerformanceCollectGraphProcessor, PerformanceCollectGraphProcessorRec,
          KX_INT(valid),
          PERF_RATE(used_rate));
KX_CONVERTERS(PerformanceCollectGraphProcessor, PerformanceCollectGraphProcessor, PerformanceCollectGraphProcessorRec)

KX_RECORD(PerformanceCollectGraphDriveOpr, PerformanceCollectGraphDriveOprRec,
          KX_INT(valid),
          PERF_RATE(operate_rate),
          KX_INT(tag_count));
KX_CONVERTERS(PerformanceCollectGraphDriveOpr, PerformanceCollectGraphDriveOpr, PerformanceCollectGraphDriveOprRec)

KX_RECORD(PerformanceCollectGraphCache2, PerformanceCollectGraphCache2Rec,
          KX_INT(valid),
          PERF_RATE(cachecleanusagerate),
          PERF_RATE(cachemiddleusagegrate),
          PERF_RATE(cachephysicalusagerate),
          PERF_RATE(cachetotalusagerate));
KX_CONVERTERS(PerformanceCollectGraphCache2, PerformanceCollectGraphCache2, PerformanceCollectGraphCache2Rec)

KX_RECORD(PerformanceCollectGraphCachePartition, PerformanceCollectGraphCachePartitionRec,
          KX_INT(valid),
          PERF_RATE(cachewritependingrate),
          PERF_RATE(cachecleanusagerate),
          PERF_RATE(cachemiddleusagegrate),
          PERF_RATE(cachephysicalusagerate),
          PERF_RATE(cachetotalusagerate));
KX_CONVERTERS(PerformanceCollectGraphCachePartition, PerformanceCollectGraphCachePartition, PerformanceCollectGraphCachePartitionRec)

KX_RECORD(PerformanceCollectGraphLUEx, PerformanceCollectGraphLUExRec,
          KX_INT(valid),
          KX_INT(tag_count));
KX_CONVERTERS(PerformanceCollectGraphLUEx, PerformanceCollectGraphLUEx, PerformanceCollectGraphLUExRec)

KX_RECORD(PerformanceCollectGraphVUBase, PerformanceCollectGraphVUBaseRec,
          KX_INT(valid),
          KX_INT(command_iorate),
          KX_INT(command_transrate),
          KX_INT(command_time_h),
          KX_INT(command_time_l),
          KX_INT(command_max_time_h),
          KX_INT(command_max_time_l));
KX_CONVERTERS(PerformanceCollectGraphVUBase, PerformanceCollectGraphVUBase, PerformanceCollectGraphVUBaseRec)

KX_RECORD(PerformanceCollectGraphVUPort, PerformanceCollectGraphVUPortRec,
          KX_NESTED(control, kx::rec::PerformanceCollectGraphVUBase),
          KX_NESTED(data_transfer, kx::rec::PerformanceCollectGraphVUBase));
KX_CONVERTERS(PerformanceCollectGraphVUPort, PerformanceCollectGraphVUPort, PerformanceCollectGraphVUPortRec)

KX_RECORD(PerformanceCollectGraphVULU, PerformanceCollectGraphVULURec,
          KX_NESTED(data_transfer, kx::rec::PerformanceCollectGraphVUBase));
KX_CONVERTERS(PerformanceCollectGraphVULU, PerformanceCollectGraphVULU, PerformanceCollectGraphVULURec)

KX_RECORD(PerformanceCollectGraph, PerformanceCollectGraphRec,
          KX_RECORDS(mtime, kx::rec::KXTime),
          KX_RECORDS(port, kx::rec::PerformanceCollectGraphPort),
          KX_RECORDS(lu, kx::rec::PerformanceCollectGraphLU),
          KX_NESTED(cache, kx::rec::PerformanceCollectGraphCache),
          KX_RECORDS(backend, kx::rec::PerformanceCollectGraphBackend),
          KX_RECORDS2(drive, kx::rec::PerformanceCollectGraphDrive),
          KX_NESTED(processor, kx::rec::PerformanceCollectGraphProcessor),
          KX_RECORDS2(driveopr, kx::rec::PerformanceCollectGraphDriveOpr),
          KX_RECORDS(rg, kx::rec::PerformanceCollectGraphRG),
          KX_NESTED(cache2, kx::rec::PerformanceCollectGraphCache2),
          KX_RECORDS(luex, kx::rec::PerformanceCollectGraphLUEx),
          KX_RECORDS(cachepartition, kx::rec::PerformanceCollectGraphCachePartition),
          KX_RECORDS(vu_port, kx::rec::PerformanceCollectGraphVUPort),
          KX_RECORDS(vu_lu, kx::rec::PerformanceCollectGraphVULU));
KX_CONVERTERS(PerformanceCollectGraph, PerformanceCollectGraph, PerformanceCollectGraphRec)

KX_RECORD(PerformanceCollectGraphInfo, PerformanceCollectGraphInfoRec,
          PERF_LINKED_ARRAY(graphinfo, kx::rec::PerformanceCollectGraph));
KX_CONVERTERS(PerformanceCollectGraphInfo, PerformanceCollectGraphInfo, PerformanceCollectGraphInfoRec)

KX_RECORD(PerformanceOutputGraphInfo, PerformanceOutputGraphInfoRec,
          PERF_LINKED(preinfo0, kx::rec::PerformanceAll),
          PERF_LINKED(afterinfo0, kx::rec::PerformanceAll),
          PERF_LINKED(preinfo1, kx::rec::PerformanceAll),
          PERF_LINKED(afterinfo1, kx::rec::PerformanceAll));
KX_READER(PerformanceOutputGraphInfo, PerformanceOutputGraphInfo, PerformanceOutputGraphInfoRec)
