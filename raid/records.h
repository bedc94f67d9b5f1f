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

// ==== end of pools, virtual volumes, unified LUs, set-up wizard and LU cache ====
