// RAID groups, logical units, formatting and drives: record descriptions.
#pragma once

#include "core/native.h"
#include "raid.h"
#include "session/records.h"

// ==== RAID groups and logical units ====

KX_RECORD(RaidGroup, RaidGroupRec,
          KX_INT(rgnum), KX_INT(level), KX_INT(port), KX_INT(row), KX_INT(width), KX_INT(depth),
          KX_INT(minimum_capa), KX_INT(lastLBASet), KX_INT(lastLBA), KX_INT(rest_h), KX_INT(rest),
          KX_INT(lumaxcapa), KX_INT(unit_type), KX_INT(unit_type_sub_code));

KX_RECORD(CreateRgDrive, CreateRgDriveRec,
          KX_INT(unit_no), KX_INT(hdu_no));

// The drive list is read over the Java array's length but never past its 450
// slots, and always written in full.
KX_RECORD(CreateRaidGroup, CreateRaidGroupRec,
          KX_INT(create_mode), KX_INT(rgnum), KX_INT(level), KX_INT(drive_type), KX_INT(drive_capa),
          KX_INT(parity_hdu_count), KX_INT(parity_count),
          KX_RECORDS(rgdrv, kx::rec::CreateRgDrive));

KX_RECORD(RgDetail, RgDetailRec,
          KX_INT(valid_index), KX_INT(rgnum), KX_INT(level), KX_INT(start_unit_no),
          KX_INT(start_hdu_no), KX_INT(parity_hdu_count), KX_INT(parity_count),
          KX_INT(minimum_capa), KX_INT(total_capa_h), KX_INT(total_capa_l), KX_INT(rest_capa_h),
          KX_INT(rest_capa_l), KX_INT(rg_type));

KX_RECORD(RgDriveInfo, RgDriveInfoRec,
          KX_INT(valid_index), KX_INT(next_unit_no), KX_INT(next_hdu_no), KX_INT(paritygroup_no));

// Always 90 groups and 30 rows of 15 drive links, whatever rg_count says.
KX_RECORD(RaidGroupInformation, RaidGroupInformationRec,
          KX_INT(rg_count),
          KX_RECORDS(rg, kx::rec::RgDetail),
          KX_RECORDS2(rgdrv, kx::rec::RgDriveInfo));

KX_RECORD(AreaInfo, AreaInfoRec,
          KX_INT(areakind), KX_INT(lun), KX_INT(befor_lun), KX_INT(area_capa_h), KX_INT(area_capa_l));

// Always 8193 areas, whatever area_count says.
KX_RECORD(RGAreaInformation, RGAreaInformationRec,
          KX_INT(rgnum), KX_INT(lumaxcapa), KX_INT(area_count),
          KX_RECORDS(area, kx::rec::AreaInfo));

KX_RECORD(LogicalUnit, LogicalUnitRec,
          KX_INT(luNumber), KX_INT(rgNumber), KX_INT(raid_level), KX_INT(staging), KX_INT(capacity),
          KX_INT(befor_lun), KX_INT(cachepart_no), KX_INT(pair_cachepart_valid),
          KX_INT(pair_cachepart_no), KX_INT(current_cachepart_no), KX_INT(stripe),
          KX_INT(lu_use_type), KX_INT(defaultCTL), KX_INT(currentCTL), KX_INT(status),
          KX_INT(hostblock), KX_INT(lu_valid), KX_INT(qf_status), KX_INT(correction_status),
          KX_INT(rg_last_lu), KX_INT(unit_type), KX_INT(unit_type_sub_code));

KX_RECORD(LUReallocInfo, LUReallocInfoRec,
          KX_INT(lun), KX_INT(lusize), KX_INT(newlun));

KX_CONVERTERS(RaidGroup, RaidGroup, RaidGroupRec)
KX_CONVERTERS(CreateRgDrive, CreateRgDrive, CreateRgDriveRec)
KX_CONVERTERS(CreateRaidGroup, CreateRaidGroup, CreateRaidGroupRec)
KX_WRITER(RgDetail, RgDetailRec)
KX_WRITER(RgDriveInfo, RgDriveInfoRec)
KX_WRITER(RaidGroupInformation, RaidGroupInformationRec)
KX_CONVERTERS(AreaInfo, AreaInfo, AreaInfoRec)
KX_CONVERTERS(RGAreaInformation, RGAreaInformation, RGAreaInformationRec)
KX_CONVERTERS(LogicalUnit, LogicalUnit, LogicalUnitRec)
KX_READER(LUReallocInfo, LUReallocInfo, LUReallocInfoRec)

// ==== end of RAID groups and logical units ====


// ==== formatting, parity correction and drives ====

// ---- formatting and parity correction

// Byte maps are read at their full length from index 0: a shorter Java array
// fails the conversion (the library still gets the record), a longer one
// gives only its first 2048 / 4096 bytes.
KX_RECORD(FormatList, FormatListRec,
          KX_BYTES(lu));
KX_RECORD(QuickFormatList, QuickFormatListRec,
          KX_BYTES(lu));
// `lu` is read as exactly 4096 ints; `lu_count` is not compared with it.
KX_RECORD(ParityCorrectionList, ParityCorrectionListRec,
          KX_INT(correction_mode),
          KX_INT(lu_count),
          KX_INTS(lu));
KX_RECORD(QuickFormatOption, QuickFormatOptionRec,
          KX_INT(valid_index),
          KX_INT(change_index),
          KX_INT(priority_mode),
          KX_INT(format_mode));

KX_RECORD(LuFormatStatus, LuFormatStatusRec,
          KX_INT(status),
          KX_INT(percent),
          KX_INT(err_code_sense_key),
          KX_INT(err_code_sense_code));
KX_RECORD(LuFormatStatusList, LuFormatStatusListRec,
          KX_RECORDS(lu, rec::LuFormatStatus));

KX_RECORD(FormatStatus, FormatStatusRec,
          KX_INT(entry),
          KX_INT(status),
          KX_INT(percent),
          KX_INT(err_code_sense_key),
          KX_INT(err_code_sense_code));
KX_RECORD(FormatStatusList, FormatStatusListRec,
          KX_INT(mode),
          KX_INT(totalpercent),
          KX_INT(resttime),
          KX_RECORDS(lu, rec::FormatStatus));

KX_RECORD(QuickFormatStatus, QuickFormatStatusRec,
          KX_INT(entry),
          KX_INT(status),
          KX_INT(percent),
          KX_INT(waiting_number));
KX_RECORD(QuickFormatStatusList, QuickFormatStatusListRec,
          KX_INT(priority_mode),
          KX_INT(format_mode),
          KX_RECORDS(lu, rec::QuickFormatStatus));

KX_RECORD(CorrectionLuStatus, CorrectionLuStatusRec,
          KX_INT(status),
          KX_INT(percent),
          KX_INT(waiting_number));
KX_RECORD(ParityCorrectionStatusList, ParityCorrectionStatusListRec,
          KX_RECORDS(lu, rec::CorrectionLuStatus));

KX_READER(FormatList, FormatList, FormatListRec)
KX_READER(QuickFormatList, QuickFormatList, QuickFormatListRec)
KX_READER(ParityCorrectionList, ParityCorrectionList, ParityCorrectionListRec)
KX_CONVERTERS(QuickFormatOption, QuickFormatOption, QuickFormatOptionRec)
KX_WRITER(LuFormatStatus, LuFormatStatusRec)
KX_WRITER(LuFormatStatusList, LuFormatStatusListRec)
KX_WRITER(FormatStatus, FormatStatusRec)
KX_WRITER(FormatStatusList, FormatStatusListRec)
KX_WRITER(QuickFormatStatus, QuickFormatStatusRec)
KX_WRITER(QuickFormatStatusList, QuickFormatStatusListRec)
KX_WRITER(CorrectionLuStatus, CorrectionLuStatusRec)
KX_WRITER(ParityCorrectionStatusList, ParityCorrectionStatusListRec)

// ---- drives

// Strings that cannot be set leave their field null and the object is still
// built; an int that cannot be set drops the object.
KX_RECORD(DiskDriveInformation, DiskDriveInformationRec,
          KX_STRING(vendor),
          KX_STRING(product),
          KX_STRING(revision),
          KX_INT(lastLBA),
          KX_STRING(drive_capacity),
          KX_INT(add_info_index),
          KX_STRING(serial),
          KX_INT(unit_type),
          KX_INT(unit_type_sub_code),
          KX_INT(drive_rotation));
KX_RECORD(DiskDrive, DiskDriveRec,
          KX_INT(port_no),
          KX_INT(row_no),
          KX_INT(mount),
          KX_INT(attribute),
          KX_INT(drv_state),
          KX_INT(spare_of_disk_port),
          KX_INT(spare_of_disk_row));
KX_RECORD(DiskDriveRestoration, DiskDriveRestorationRec,
          KX_INT(mode),
          KX_INT(restoration),
          KX_INT(dynamic_sparing),
          KX_INT(interval),
          KX_INT(unit_size),
          KX_INT(sparemode),
          KX_INT(no_copyback_allunit));
KX_RECORD(DriveReconstructInformation, DriveReconstructInformationRec,
          KX_INT(valid),
          KX_INT(status_code),
          KX_INT(progress_ratio),
          KX_INT(hdu_no),
          KX_INT(unit_no));

KX_RECORD(SweepInfo, SweepInfoRec,
          KX_INT(sweep_valid),
          KX_INT(interval_time),
          KX_INT(stop_time),
          KX_INT(unload),
          KX_INT(onlineVerify));
KX_RECORD(DriveFlashInfo, DriveFlashInfoRec,
          KX_INT(compare_mode),
          KX_INT(drv_flash_time),
          KX_INT(drv_flash_io_count));
KX_RECORD(SmartInfo, SmartInfoRec,
          KX_INT(smart_valid),
          KX_INT(reassign_thres));
// Reading stops with -1 at the first null nested object: that part and the
// ones after it stay unfilled.
KX_RECORD(SATADriveInformation, SATADriveInformationRec,
          KX_NESTED(sweep_info, rec::SweepInfo),
          KX_NESTED(flash_info, rec::DriveFlashInfo),
          KX_NESTED(smart_info, rec::SmartInfo));
KX_RECORD(SATADriveRestoration, SATADriveRestorationRec,
          KX_INT(collect_copy_times));
KX_RECORD(DriveResponseDiag, DriveResponseDiagRec,
          KX_INT(valid),
          KX_INT(set_mode),
          KX_INT(mode),
          KX_INT(threshold),
          KX_INT(sata_diag),
          KX_INT(autodiag_threshold));

KX_RECORD(SpinDownUpRGInfo, SpinDownUpRGInfoRec,
          KX_INT(rgnum),
          KX_INT(rg_power_saving_status),
          KX_INT(rg_power_saving),
          KX_INT(spin_down_count),
          KX_INT(spin_error));
KX_RECORD(SpinDownUpLuInfo, SpinDownUpLuInfoRec,
          KX_INT(lun),
          KX_INT(lu_power_saving),
          KX_INT(lu_power_saving_detail));
// Both arrays are built in full (90 and 4096) whatever the counts say.
KX_RECORD(SpinDownUpInformation, SpinDownUpInformationRec,
          KX_INT(option),
          KX_INT(rg_count),
          KX_RECORDS(rg, rec::SpinDownUpRGInfo),
          KX_INT(lu_count),
          KX_RECORDS(lu, rec::SpinDownUpLuInfo));

KX_WRITER(DiskDriveInformation, DiskDriveInformationRec)
KX_WRITER(DiskDrive, DiskDriveRec)
KX_CONVERTERS(DiskDriveRestoration, DiskDriveRestoration, DiskDriveRestorationRec)
KX_WRITER(DriveReconstructInformation, DriveReconstructInformationRec)
KX_CONVERTERS(SweepInfo, SweepInfo, SweepInfoRec)
KX_CONVERTERS(DriveFlashInfo, DriveFlashInfo, DriveFlashInfoRec)
KX_CONVERTERS(SmartInfo, SmartInfo, SmartInfoRec)
KX_CONVERTERS(SATADriveInformation, SATADriveInformation, SATADriveInformationRec)
KX_CONVERTERS(SATADriveRestoration, SATADriveRestoration, SATADriveRestorationRec)
KX_CONVERTERS(DriveResponseDiag, DriveResponseDiag, DriveResponseDiagRec)
KX_WRITER(SpinDownUpRGInfo, SpinDownUpRGInfoRec)
KX_WRITER(SpinDownUpLuInfo, SpinDownUpLuInfoRec)
KX_WRITER(SpinDownUpInformation, SpinDownUpInformationRec)

// ==== end of formatting, parity correction and drives ====


// ==== pools, virtual volumes, unified LUs, set-up wizard and LU cache ====

// ---- pools, virtual volumes and unified LUs

// What a pool's detail holds is the library's own: the object is made and
// nothing is converted either way.
KX_RECORD(PoolDetailInfo, PoolDetailInfoRec,
          KX_CUSTOM(detail, nullptr, nullptr));
KX_RECORD(PoolCtlInfo, PoolCtlInfoRec,
          KX_INT(pool_enable_count),
          KX_RECORDS(pool, rec::PoolDetailInfo));
KX_RECORD(PoolInfo, PoolInfoRec,
          KX_INT(option),
          KX_RECORDS(ctl, rec::PoolCtlInfo));
KX_RECORD(ChgPoolInfo, ChgPoolInfoRec,
          KX_INT(ctl_no),
          KX_INT(pool_no),
          KX_INT(poolinfo_chg_index),
          KX_INT(threshold));

// Int arrays travel at exactly their capacity, read from index 0: a shorter
// Java array fails the reading there (the library still gets the record).
KX_RECORD(PoolLuAddList, PoolLuAddListRec,
          KX_INT(lu_count),
          KX_INTS(lu));
KX_RECORD(IntegrationLUSet, IntegrationLUSetRec,
          KX_INT(operation),
          KX_INT(parent_lun),
          KX_INT(child_lun),
          KX_INT(child_count),
          KX_INTS(child_lu));
KX_RECORD(PINInformation, PINInformationRec,
          KX_INT(unite_option),
          KX_INTS(single_lu),
          KX_INTS(unite_lu));
KX_RECORD(UniteLU, UniteLURec,
          KX_INT(unite_info),
          KX_INT(status),
          KX_INT(capacity),
          KX_INT(child_lu_count),
          KX_INTS(child_lun));
// Always 512 unified LUs of 512 children each.
KX_RECORD(IntegrationLUInfo, IntegrationLUInfoRec,
          KX_INT(integration_lu),
          KX_RECORDS(unite_info, rec::UniteLU));
KX_RECORD(UniteLU2, UniteLU2Rec,
          KX_INT(unite_info),
          KX_INT(status),
          KX_INT(capacity),
          KX_INT(child_lu_count),
          KX_INT(next_lun));
KX_RECORD(IntegrationLUInfo2, IntegrationLUInfo2Rec,
          KX_INT(integration_lu),
          KX_INT(parent_count),
          KX_INTS(parent_lu),
          KX_RECORDS(unite_info, rec::UniteLU2));

KX_RECORD(KXLabel, KXLabelRec,
          KX_STRING(oldlabel),
          KX_STRING(newlabel));

KX_RECORD(SpareDisk, SpareDiskRec,
          KX_INT(unit_no),
          KX_INT(hdu_no));
// The RAID groups and LUs as their own families describe them; always 4096
// LUs and 30 spares whatever the counts say.
KX_RECORD(RaidLUInformation, RaidLUInformationRec,
          KX_NESTED(rgparam, rec::RaidGroupInformation),
          KX_RECORDS(luparam, rec::LogicalUnit),
          KX_INT(spare_count),
          KX_RECORDS(spareinfo, rec::SpareDisk));

KX_WRITER(PoolDetailInfo, PoolDetailInfoRec)
KX_WRITER(PoolCtlInfo, PoolCtlInfoRec)
KX_WRITER(PoolInfo, PoolInfoRec)
KX_READER(ChgPoolInfo, ChgPoolInfo, ChgPoolInfoRec)
KX_READER(PoolLuAddList, PoolLuAddList, PoolLuAddListRec)
KX_READER(IntegrationLUSet, IntegrationLUSet, IntegrationLUSetRec)
KX_WRITER(PINInformation, PINInformationRec)
KX_CONVERTERS(UniteLU, UniteLU, UniteLURec)
KX_CONVERTERS(IntegrationLUInfo, IntegrationLUInfo, IntegrationLUInfoRec)
KX_CONVERTERS(UniteLU2, UniteLU2, UniteLU2Rec)
KX_CONVERTERS(IntegrationLUInfo2, IntegrationLUInfo2, IntegrationLUInfo2Rec)
KX_WRITER(KXLabel, KXLabelRec)
KX_CONVERTERS(SpareDisk, SpareDisk, SpareDiskRec)
KX_CONVERTERS(RaidLUInformation, RaidLUInformation, RaidLUInformationRec)

// ---- set-up wizard
//
// Arrays of records are read over the Java array's length, never past the
// record's capacity, and always written at full capacity (2 per controller
// pair; 4, 16 and 4 inside).  One-byte members carry their sign in their C
// type: `single` and `board_type` read back signed, `lan_connect`,
// `dhcp_mode` and `rate` unsigned; only the low byte of the Java int is kept.

// `port_d_ctl` is a Java int[4] held as four bytes.
KX_RECORD(WZDualConfig, WZDualConfigRec,
          KX_INT(startup_attr),
          KX_INT(data_share),
          KX_INT(spare_disk),
          KX_INT(connection_mode),
          KX_STRING(serial),
          KX_BYTE_TABLE(port_d_ctl),
          KX_INT(id_taking_over),
          KX_INTS2(port_cnnct_mode1),
          KX_INTS2(port_cnnct_mode2),
          KX_INT(delay_time),
          KX_INT(hp2_support),
          KX_INT(add_bat_unit));
KX_RECORD(WZDriveCapacity, WZDriveCapacityRec,
          KX_INTS(row),
          KX_INT(spare));
// Three Java classes over one layout.
KX_RECORD(WZOption, WZOptionRec,
          KX_INT(common), KX_INT(scsi), KX_INT(fibre));
KX_RECORD(WZEnhancedOption, WZOptionRec,
          KX_INT(common), KX_INT(scsi), KX_INT(fibre));
KX_RECORD(WZPortOption, WZOptionRec,
          KX_INT(common), KX_INT(scsi), KX_INT(fibre));
KX_RECORD(WZTargetLunList, WZTargetLunListRec,
          KX_BYTES(lun));
KX_RECORD(WZTargetConfig, WZTargetConfigRec,
          KX_BYTE(single),
          KX_BYTES(multi),
          KX_RECORDS(mapping, rec::WZTargetLunList));
KX_RECORD(WZTargetId, WZTargetIdRec,
          KX_INT(ctrl_flag),
          KX_INT(target_id_mode),
          KX_RECORDS(target_config, rec::WZTargetConfig));
KX_RECORD(WZModeParam, WZModeParamRec,
          KX_INT(striping),
          KX_INT(buzzer),
          KX_INT(lu_size_report),
          KX_INT(reset),
          KX_INT(failures));
KX_RECORD(WZInquiry, WZInquiryRec,
          KX_INT(command_que),
          KX_INT(ansi_version),
          KX_INT(cache_mode),
          KX_STRING(vendor),
          KX_STRING(product),
          KX_STRING(rom_micro),
          KX_STRING(ram_micro),
          KX_STRING(web_title),
          KX_INT(link_separation));
KX_RECORD(WZPortType, WZPortTypeRec,
          KX_INT(port_type),
          KX_INTS(port_mode),
          KX_RECORDS(port_option, rec::WZPortOption));
KX_RECORD(WZRomResponse, WZRomResponseRec,
          KX_INT(mode),
          KX_INTS(port_save_data));
KX_RECORD(WZControllerOption, WZControllerOptionRec,
          KX_INT(id_mode),
          KX_STRING(id_front),
          KX_STRING(id_rear),
          KX_INT(error_out_mode),
          KX_INT(write_verify_mode));
KX_RECORD(WZLanConfig, WZLanConfigRec,
          KX_BYTE(lan_connect),
          KX_BYTE(dhcp_mode),
          KX_STRING(ip_address),
          KX_STRING(subnet),
          KX_STRING(gateway),
          KX_STRING(ether));
KX_RECORD(WZSyncPort, WZSyncPortRec,
          KX_BYTE(board_type),
          KX_BYTE(rate));
KX_RECORD(WZSyncControl, WZSyncControlRec,
          KX_RECORDS(port_val, rec::WZSyncPort));
// A null nested object ends the reading (-1): it and the parts after it stay
// empty.  A nested part that fails without a Java exception (a null String)
// ends only that part.
KX_RECORD(WizardParam, WizardParamRec,
          KX_INT(fd_backup),
          KX_NESTED(dual_conf, rec::WZDualConfig),
          KX_NESTED(drive_capacity, rec::WZDriveCapacity),
          KX_NESTED(option, rec::WZOption),
          KX_NESTED(e_option, rec::WZEnhancedOption),
          KX_NESTED(e_option2, rec::WZEnhancedOption),
          KX_RECORDS(target_id, rec::WZTargetId),
          KX_NESTED(mode_param, rec::WZModeParam),
          KX_NESTED(inquiry, rec::WZInquiry),
          KX_RECORDS(port_type, rec::WZPortType),
          KX_RECORDS(rom_response, rec::WZRomResponse),
          KX_RECORDS(ctl_opt, rec::WZControllerOption),
          KX_RECORDS(lan_conf, rec::WZLanConfig),
          KX_RECORDS(sync_control, rec::WZSyncControl));

KX_RECORD(NowWZPortOptions, NowWZPortOptionsRec,
          KX_INTS2(mode),
          KX_INT(hp2_support));
KX_RECORD(NowWZCtrlId, NowWZCtrlIdRec,
          KX_STRING(id_front),
          KX_STRING(id_rear),
          KX_INT(ctrl_name_mode));
KX_RECORD(NowWZParameter, NowWZParameterRec,
          KX_INT(fd_backup),
          KX_NESTED(port_option, rec::NowWZPortOptions),
          KX_NESTED(ctrl_id, rec::NowWZCtrlId));

namespace kx {
// Text longer than the ordinary string fields: read like them (at most
// size-1 bytes and a NUL), written up to its NUL or the end of the buffer.
int read_long_text(JNIEnv* env, jobject obj, const Field& f, void* rec);
int write_long_text(JNIEnv* env, jobject obj, const Field& f, const void* rec);
}  // namespace kx

// The field is spelled "setcontens".
KX_RECORD(LuWZSetContents, LuWZSetContentsRec,
          KX_UNCHECKED(KX_CUSTOM(setcontens, kx::read_long_text, kx::write_long_text)));

KX_CONVERTERS(WZDualConfig, WZDualConfig, WZDualConfigRec)
KX_CONVERTERS(WZDriveCapacity, WZDriveCapacity, WZDriveCapacityRec)
KX_CONVERTERS(WZOption, WZOption, WZOptionRec)
KX_CONVERTERS(WZEnhancedOption, WZEnhancedOption, WZOptionRec)
KX_CONVERTERS(WZPortOption, WZPortOption, WZOptionRec)
KX_CONVERTERS(WZTargetLunList, WZTargetLunList, WZTargetLunListRec)
KX_CONVERTERS(WZTargetConfig, WZTargetConfig, WZTargetConfigRec)
KX_CONVERTERS(WZTargetId, WZTargetId, WZTargetIdRec)
KX_CONVERTERS(WZModeParam, WZModeParam, WZModeParamRec)
KX_CONVERTERS(WZInquiry, WZInquiry, WZInquiryRec)
KX_CONVERTERS(WZPortType, WZPortType, WZPortTypeRec)
KX_CONVERTERS(WZRomResponse, WZRomResponse, WZRomResponseRec)
KX_CONVERTERS(WZControllerOption, WZControllerOption, WZControllerOptionRec)
KX_CONVERTERS(WZLanConfig, WZLanConfig, WZLanConfigRec)
KX_CONVERTERS(WZSyncPort, WZSyncPort, WZSyncPortRec)
KX_CONVERTERS(WZSyncControl, WZSyncControl, WZSyncControlRec)
KX_CONVERTERS(WizardParam, WizardParam, WizardParamRec)
KX_CONVERTERS(NowWZPortOptions, NowWZPortOptions, NowWZPortOptionsRec)
KX_CONVERTERS(NowWZCtrlId, NowWZCtrlId, NowWZCtrlIdRec)
KX_CONVERTERS(NowWZParameter, NowWZParameter, NowWZParameterRec)
KX_CONVERTERS(LuWZSetContents, LuWZSetContents, LuWZSetContentsRec)

// ---- LU cache settings

KX_RECORD(PrefetchInformation, PrefetchInformationRec,
          KX_INT(stg_rd0),
          KX_INT(stg_rd1),
          KX_INT(stg_rd5),
          KX_INT(stg_next),
          KX_INT(stg_hed_size));
// The four partition tables are read as exactly 4096 ints from index 0: a
// shorter Java array fails the reading there, its exception left pending, and
// the library still gets the record.
KX_RECORD(LuCachePartition, LuCachePartitionRec,
          KX_INT(option),
          KX_INT(support_index),
          KX_INT(valid_index),
          KX_INTS(current_prt_num),
          KX_INTS(reserve_prt_num),
          KX_INTS(now_prt_num),
          KX_INTS(pair_prt_num));
KX_RECORD(PrefetchTuningLURange, PrefetchTuningLURangeRec,
          KX_INT(multi_stream_read),
          KX_INT(multi_stream_write),
          KX_INT(next_pre_mode),
          KX_INT(pre_std));
KX_RECORD(PrefetchLUInfo, PrefetchLUInfoRec,
          KX_INT(pre_size_basis),
          KX_INT(pre_size_fixation));
// A null lu_range ends the reading (-1) before lu; always 4096 of each built.
KX_RECORD(PrefetchTuning, PrefetchTuningRec,
          KX_INT(support_index),
          KX_INT(valid_index),
          KX_INT(set_mode),
          KX_INT(setting_range),
          KX_INT(multi_stream_read),
          KX_INT(multi_stream_write),
          KX_INT(seq_count),
          KX_INT(next_pre_mode),
          KX_INT(pre_std),
          KX_RECORDS(lu_range, rec::PrefetchTuningLURange),
          KX_RECORDS(lu, rec::PrefetchLUInfo));
// The turbo-LU records belong to natives that never flush stdout; neither do
// their writers.
KX_RECORD_NO_FLUSH(TurboLu_info, TurboLuInfoRec,
                   KX_INT(current_status),
                   KX_INT(current_assign),
                   KX_INT(current_lun),
                   KX_INT(reserve_assign),
                   KX_INT(reserve_lun));
KX_RECORD_NO_FLUSH(TurboLu, TurboLuRec,
                   KX_INT(option),
                   KX_RECORDS(ctl, rec::TurboLu_info));

KX_CONVERTERS(PrefetchInformation, PrefetchInformation, PrefetchInformationRec)
KX_CONVERTERS(LuCachePartition, LuCachePartition, LuCachePartitionRec)
KX_CONVERTERS(PrefetchTuningLURange, PrefetchTuningLURange, PrefetchTuningLURangeRec)
KX_CONVERTERS(PrefetchLUInfo, PrefetchLUInfo, PrefetchLUInfoRec)
KX_CONVERTERS(PrefetchTuning, PrefetchTuning, PrefetchTuningRec)
KX_CONVERTERS(TurboLu_info, TurboLu_info, TurboLuInfoRec)
KX_CONVERTERS(TurboLu, TurboLu, TurboLuRec)

// ==== end of pools, virtual volumes, unified LUs, set-up wizard and LU cache ====
