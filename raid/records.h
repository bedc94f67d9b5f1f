// RAID groups, logical units, formatting and drives: record descriptions.
#pragma once

#include "core/native.h"
#include "raid.h"
#include "session/records.h"

// ==== RAID groups and logical units ====

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
