/* RAID groups, logical units, formatting and parity correction, drives. */
#ifndef PERNIX_RAID_H
#define PERNIX_RAID_H

#include "pernix_common.h"
#include "session.h"

/* ==== RAID groups and logical units ==== */

#pragma pack(push, 1)

/* One RAID group of the older interface. */
typedef struct RaidGroupRec {
  int32_t rgnum;
  int32_t level;
  int32_t port;
  int32_t row;
  int32_t width;
  int32_t depth;
  int32_t minimum_capa;
  int32_t lastLBASet;
  int32_t lastLBA;
  int32_t rest_h;
  int32_t rest;
  int32_t lumaxcapa;
  int32_t unit_type;
  int32_t unit_type_sub_code;
} RaidGroupRec;
PERNIX_SIZE(RaidGroupRec, 56);
PERNIX_OFFSET(RaidGroupRec, rgnum, 0);
PERNIX_OFFSET(RaidGroupRec, level, 4);
PERNIX_OFFSET(RaidGroupRec, port, 8);
PERNIX_OFFSET(RaidGroupRec, row, 12);
PERNIX_OFFSET(RaidGroupRec, width, 16);
PERNIX_OFFSET(RaidGroupRec, depth, 20);
PERNIX_OFFSET(RaidGroupRec, minimum_capa, 24);
PERNIX_OFFSET(RaidGroupRec, lastLBASet, 28);
PERNIX_OFFSET(RaidGroupRec, lastLBA, 32);
PERNIX_OFFSET(RaidGroupRec, rest_h, 36);
PERNIX_OFFSET(RaidGroupRec, rest, 40);
PERNIX_OFFSET(RaidGroupRec, lumaxcapa, 44);
PERNIX_OFFSET(RaidGroupRec, unit_type, 48);
PERNIX_OFFSET(RaidGroupRec, unit_type_sub_code, 52);

/* The list of the older interface: 90 groups. */
enum { PERNIX_RAID_GROUPS = 90 };

/* One drive of a RAID group to be made. */
typedef struct CreateRgDriveRec {
  int32_t unit_no;
  int32_t hdu_no;
} CreateRgDriveRec;
PERNIX_SIZE(CreateRgDriveRec, 8);
PERNIX_OFFSET(CreateRgDriveRec, unit_no, 0);
PERNIX_OFFSET(CreateRgDriveRec, hdu_no, 4);

enum { PERNIX_CREATE_RG_DRIVES = 450 };

/* A RAID group to be made; the drives taken are the slots filled in. */
typedef struct CreateRaidGroupRec {
  int32_t create_mode;
  int32_t rgnum;
  int32_t level;
  int32_t drive_type;
  int32_t drive_capa;
  int32_t parity_hdu_count;
  int32_t parity_count;
  CreateRgDriveRec rgdrv[PERNIX_CREATE_RG_DRIVES];
} CreateRaidGroupRec;
PERNIX_SIZE(CreateRaidGroupRec, 3628);
PERNIX_OFFSET(CreateRaidGroupRec, create_mode, 0);
PERNIX_OFFSET(CreateRaidGroupRec, rgnum, 4);
PERNIX_OFFSET(CreateRaidGroupRec, level, 8);
PERNIX_OFFSET(CreateRaidGroupRec, drive_type, 12);
PERNIX_OFFSET(CreateRaidGroupRec, drive_capa, 16);
PERNIX_OFFSET(CreateRaidGroupRec, parity_hdu_count, 20);
PERNIX_OFFSET(CreateRaidGroupRec, parity_count, 24);
PERNIX_OFFSET(CreateRaidGroupRec, rgdrv, 28);

/* One RAID group of the newer interface; capacities as high and low words. */
typedef struct RgDetailRec {
  int32_t valid_index;
  int32_t rgnum;
  int32_t level;
  int32_t start_unit_no;
  int32_t start_hdu_no;
  int32_t parity_hdu_count;
  int32_t parity_count;
  int32_t minimum_capa;
  int32_t total_capa_h;
  int32_t total_capa_l;
  int32_t rest_capa_h;
  int32_t rest_capa_l;
  int32_t rg_type;
} RgDetailRec;
PERNIX_SIZE(RgDetailRec, 52);
PERNIX_OFFSET(RgDetailRec, valid_index, 0);
PERNIX_OFFSET(RgDetailRec, rgnum, 4);
PERNIX_OFFSET(RgDetailRec, level, 8);
PERNIX_OFFSET(RgDetailRec, start_unit_no, 12);
PERNIX_OFFSET(RgDetailRec, start_hdu_no, 16);
PERNIX_OFFSET(RgDetailRec, parity_hdu_count, 20);
PERNIX_OFFSET(RgDetailRec, parity_count, 24);
PERNIX_OFFSET(RgDetailRec, minimum_capa, 28);
PERNIX_OFFSET(RgDetailRec, total_capa_h, 32);
PERNIX_OFFSET(RgDetailRec, total_capa_l, 36);
PERNIX_OFFSET(RgDetailRec, rest_capa_h, 40);
PERNIX_OFFSET(RgDetailRec, rest_capa_l, 44);
PERNIX_OFFSET(RgDetailRec, rg_type, 48);

/* One link of a RAID group's drive chain: names the next drive. */
typedef struct RgDriveInfoRec {
  int32_t valid_index;
  int32_t next_unit_no;
  int32_t next_hdu_no;
  int32_t paritygroup_no;
} RgDriveInfoRec;
PERNIX_SIZE(RgDriveInfoRec, 16);
PERNIX_OFFSET(RgDriveInfoRec, valid_index, 0);
PERNIX_OFFSET(RgDriveInfoRec, next_unit_no, 4);
PERNIX_OFFSET(RgDriveInfoRec, next_hdu_no, 8);
PERNIX_OFFSET(RgDriveInfoRec, paritygroup_no, 12);

enum { PERNIX_RG_DRIVE_ROWS = 30, PERNIX_RG_DRIVE_COLUMNS = 15 };

/* All RAID groups of a unit and their drive chains. */
typedef struct RaidGroupInformationRec {
  int32_t rg_count;
  RgDetailRec rg[PERNIX_RAID_GROUPS];
  RgDriveInfoRec rgdrv[PERNIX_RG_DRIVE_ROWS][PERNIX_RG_DRIVE_COLUMNS];
} RaidGroupInformationRec;
PERNIX_SIZE(RaidGroupInformationRec, 11884);
PERNIX_OFFSET(RaidGroupInformationRec, rg_count, 0);
PERNIX_OFFSET(RaidGroupInformationRec, rg, 4);
PERNIX_OFFSET(RaidGroupInformationRec, rgdrv, 4684);

/* One extent of a RAID group: used by a logical unit, or free. */
typedef struct AreaInfoRec {
  int32_t areakind;
  int32_t lun;
  int32_t befor_lun;
  int32_t area_capa_h;
  int32_t area_capa_l;
} AreaInfoRec;
PERNIX_SIZE(AreaInfoRec, 20);
PERNIX_OFFSET(AreaInfoRec, areakind, 0);
PERNIX_OFFSET(AreaInfoRec, lun, 4);
PERNIX_OFFSET(AreaInfoRec, befor_lun, 8);
PERNIX_OFFSET(AreaInfoRec, area_capa_h, 12);
PERNIX_OFFSET(AreaInfoRec, area_capa_l, 16);

enum { PERNIX_RG_AREAS = 8193 };

/* The extents of one RAID group. */
typedef struct RGAreaInformationRec {
  int32_t rgnum;
  int32_t lumaxcapa;
  int32_t area_count;
  AreaInfoRec area[PERNIX_RG_AREAS];
} RGAreaInformationRec;
PERNIX_SIZE(RGAreaInformationRec, 163872);
PERNIX_OFFSET(RGAreaInformationRec, rgnum, 0);
PERNIX_OFFSET(RGAreaInformationRec, lumaxcapa, 4);
PERNIX_OFFSET(RGAreaInformationRec, area_count, 8);
PERNIX_OFFSET(RGAreaInformationRec, area, 12);

/* One logical unit. */
typedef struct LogicalUnitRec {
  int32_t luNumber;
  int32_t rgNumber;
  int32_t raid_level;
  int32_t staging;
  int32_t capacity;
  int32_t befor_lun;
  int32_t cachepart_no;
  int32_t pair_cachepart_valid;
  int32_t pair_cachepart_no;
  int32_t current_cachepart_no;
  int32_t stripe;
  int32_t lu_use_type;
  int32_t defaultCTL;
  int32_t currentCTL;
  int32_t status;
  int32_t hostblock;
  int32_t lu_valid;
  int32_t qf_status;
  int32_t correction_status;
  int32_t rg_last_lu;
  int32_t unit_type;
  int32_t unit_type_sub_code;
} LogicalUnitRec;
PERNIX_SIZE(LogicalUnitRec, 88);
PERNIX_OFFSET(LogicalUnitRec, luNumber, 0);
PERNIX_OFFSET(LogicalUnitRec, rgNumber, 4);
PERNIX_OFFSET(LogicalUnitRec, raid_level, 8);
PERNIX_OFFSET(LogicalUnitRec, staging, 12);
PERNIX_OFFSET(LogicalUnitRec, capacity, 16);
PERNIX_OFFSET(LogicalUnitRec, befor_lun, 20);
PERNIX_OFFSET(LogicalUnitRec, cachepart_no, 24);
PERNIX_OFFSET(LogicalUnitRec, pair_cachepart_valid, 28);
PERNIX_OFFSET(LogicalUnitRec, pair_cachepart_no, 32);
PERNIX_OFFSET(LogicalUnitRec, current_cachepart_no, 36);
PERNIX_OFFSET(LogicalUnitRec, stripe, 40);
PERNIX_OFFSET(LogicalUnitRec, lu_use_type, 44);
PERNIX_OFFSET(LogicalUnitRec, defaultCTL, 48);
PERNIX_OFFSET(LogicalUnitRec, currentCTL, 52);
PERNIX_OFFSET(LogicalUnitRec, status, 56);
PERNIX_OFFSET(LogicalUnitRec, hostblock, 60);
PERNIX_OFFSET(LogicalUnitRec, lu_valid, 64);
PERNIX_OFFSET(LogicalUnitRec, qf_status, 68);
PERNIX_OFFSET(LogicalUnitRec, correction_status, 72);
PERNIX_OFFSET(LogicalUnitRec, rg_last_lu, 76);
PERNIX_OFFSET(LogicalUnitRec, unit_type, 80);
PERNIX_OFFSET(LogicalUnitRec, unit_type_sub_code, 84);

/* The LU list: every slot, used ones told by lu_valid. */
enum { PERNIX_LOGICAL_UNITS = 4096 };

/* Re-allocation of one logical unit. */
typedef struct LUReallocInfoRec {
  int32_t lun;
  int32_t lusize;
  int32_t newlun;
} LUReallocInfoRec;
PERNIX_SIZE(LUReallocInfoRec, 12);
PERNIX_OFFSET(LUReallocInfoRec, lun, 0);
PERNIX_OFFSET(LUReallocInfoRec, lusize, 4);
PERNIX_OFFSET(LUReallocInfoRec, newlun, 8);

#pragma pack(pop)

PERNIX_BEGIN_DECLS

int KX_GetRaidGroups(const char* unit, RaidGroupRec* groups);
int KX_RaidGroupAdd(const char* unit, const RaidGroupRec* rg);
int KX_RaidGroupExpand(const char* unit, const RaidGroupRec* rg);
int KX_RaidGroupDelete(const char* unit, const KXSessionInfoRec* session, int rgnum);
int KX_RaidGroupAllDelete(const char* unit, const KXSessionInfoRec* session);
int KX_CreateRaidGroup(const char* unit, const KXSessionInfoRec* session,
                       const CreateRaidGroupRec* create);
int KX_GetRaidGroupInformation(const char* unit, const KXSessionInfoRec* session,
                               RaidGroupInformationRec* info);
int KX_GetRGAreaInformation(const char* unit, const KXSessionInfoRec* session, int rgnum,
                            RGAreaInformationRec* area);
int KX_GetRaidGroupCreationCapacity(const char* unit, const KXSessionInfoRec* session,
                                    const CreateRaidGroupRec* create, RgDetailRec* detail);

int KX_GetLogicalUnit(const char* unit, const KXSessionInfoRec* session, LogicalUnitRec* list);
int KX_GetLogicalUnit1(const char* unit, const KXSessionInfoRec* session, int lun,
                       LogicalUnitRec* lu);
int KX_GetLastLogicalUnit(const char* unit, int* lun);
int KX_LogicalUnitAdd(const char* unit, const KXSessionInfoRec* session, const LogicalUnitRec* lu);
int KX_LogicalUnitDelete(const char* unit);
int KX_LogicalUnitDeleteAll(const char* unit);
int KX_LogicalUnitDeleteByLUN(const char* unit, const KXSessionInfoRec* session, int lun);
int KX_LogicalUnitExpand(const char* unit, int a, int b);
int KX_LogicalUnitChangeStaging(const char* unit, const KXSessionInfoRec* session, int a, int b);
int KX_LogicalUnitChangeCtl(const char* unit, const KXSessionInfoRec* session, int a);
int KX_LogicalUnitInvalid(const char* unit, int lun);
int KX_LogicalUnitRestore(const char* unit, int lun);
int KX_LogicalUnitRealloc(const char* unit, const LUReallocInfoRec* info);
int KX_BlockToByte(int a, int b, int c, int* r0, int* r1, int* r2);

PERNIX_END_DECLS

/* ==== end of RAID groups and logical units ==== */


/* ==== formatting, parity correction and drives ==== */

#pragma pack(push, 1)

/* ---- formatting and parity correction ---- */

/* Byte map of the LUs to format: one byte per LU number 0..2047, non-zero
 * meaning selected. */
typedef struct FormatListRec {
  uint8_t lu[2048];
} FormatListRec;
PERNIX_SIZE(FormatListRec, 2048);
PERNIX_OFFSET(FormatListRec, lu, 0);

/* Byte map of the LUs to quick-format, LU numbers 0..4095. */
typedef struct QuickFormatListRec {
  uint8_t lu[4096];
} QuickFormatListRec;
PERNIX_SIZE(QuickFormatListRec, 4096);
PERNIX_OFFSET(QuickFormatListRec, lu, 0);

/* LUs to put under parity correction: a count and a list of LU numbers. */
typedef struct ParityCorrectionListRec {
  int32_t correction_mode;
  int32_t lu_count;
  int32_t lu[4096];
} ParityCorrectionListRec;
PERNIX_SIZE(ParityCorrectionListRec, 16392);
PERNIX_OFFSET(ParityCorrectionListRec, correction_mode, 0);
PERNIX_OFFSET(ParityCorrectionListRec, lu_count, 4);
PERNIX_OFFSET(ParityCorrectionListRec, lu, 8);

typedef struct QuickFormatOptionRec {
  int32_t valid_index;
  int32_t change_index;
  int32_t priority_mode;
  int32_t format_mode;
} QuickFormatOptionRec;
PERNIX_SIZE(QuickFormatOptionRec, 16);
PERNIX_OFFSET(QuickFormatOptionRec, valid_index, 0);
PERNIX_OFFSET(QuickFormatOptionRec, change_index, 4);
PERNIX_OFFSET(QuickFormatOptionRec, priority_mode, 8);
PERNIX_OFFSET(QuickFormatOptionRec, format_mode, 12);

/* Format progress of one LU; the sense fields carry the SCSI sense data of a
 * failed format. */
typedef struct LuFormatStatusRec {
  int32_t status;
  int32_t percent;
  int32_t err_code_sense_key;
  int32_t err_code_sense_code;
} LuFormatStatusRec;
PERNIX_SIZE(LuFormatStatusRec, 16);
PERNIX_OFFSET(LuFormatStatusRec, status, 0);
PERNIX_OFFSET(LuFormatStatusRec, percent, 4);
PERNIX_OFFSET(LuFormatStatusRec, err_code_sense_key, 8);
PERNIX_OFFSET(LuFormatStatusRec, err_code_sense_code, 12);

typedef struct LuFormatStatusListRec {
  LuFormatStatusRec lu[2048];
} LuFormatStatusListRec;
PERNIX_SIZE(LuFormatStatusListRec, 32768);
PERNIX_OFFSET(LuFormatStatusListRec, lu, 0);

/* `entry` is non-zero when the LU is in the format list. */
typedef struct FormatStatusRec {
  int32_t entry;
  int32_t status;
  int32_t percent;
  int32_t err_code_sense_key;
  int32_t err_code_sense_code;
} FormatStatusRec;
PERNIX_SIZE(FormatStatusRec, 20);
PERNIX_OFFSET(FormatStatusRec, entry, 0);
PERNIX_OFFSET(FormatStatusRec, status, 4);
PERNIX_OFFSET(FormatStatusRec, percent, 8);
PERNIX_OFFSET(FormatStatusRec, err_code_sense_key, 12);
PERNIX_OFFSET(FormatStatusRec, err_code_sense_code, 16);

typedef struct FormatStatusListRec {
  int32_t mode;
  int32_t totalpercent;
  int32_t resttime;
  FormatStatusRec lu[2048];
} FormatStatusListRec;
PERNIX_SIZE(FormatStatusListRec, 40972);
PERNIX_OFFSET(FormatStatusListRec, mode, 0);
PERNIX_OFFSET(FormatStatusListRec, totalpercent, 4);
PERNIX_OFFSET(FormatStatusListRec, resttime, 8);
PERNIX_OFFSET(FormatStatusListRec, lu, 12);

/* `waiting_number` is the LU's place in the format queue. */
typedef struct QuickFormatStatusRec {
  int32_t entry;
  int32_t status;
  int32_t percent;
  int32_t waiting_number;
} QuickFormatStatusRec;
PERNIX_SIZE(QuickFormatStatusRec, 16);
PERNIX_OFFSET(QuickFormatStatusRec, entry, 0);
PERNIX_OFFSET(QuickFormatStatusRec, status, 4);
PERNIX_OFFSET(QuickFormatStatusRec, percent, 8);
PERNIX_OFFSET(QuickFormatStatusRec, waiting_number, 12);

typedef struct QuickFormatStatusListRec {
  int32_t priority_mode;
  int32_t format_mode;
  QuickFormatStatusRec lu[4096];
} QuickFormatStatusListRec;
PERNIX_SIZE(QuickFormatStatusListRec, 65544);
PERNIX_OFFSET(QuickFormatStatusListRec, priority_mode, 0);
PERNIX_OFFSET(QuickFormatStatusListRec, format_mode, 4);
PERNIX_OFFSET(QuickFormatStatusListRec, lu, 8);

typedef struct CorrectionLuStatusRec {
  int32_t status;
  int32_t percent;
  int32_t waiting_number;
} CorrectionLuStatusRec;
PERNIX_SIZE(CorrectionLuStatusRec, 12);
PERNIX_OFFSET(CorrectionLuStatusRec, status, 0);
PERNIX_OFFSET(CorrectionLuStatusRec, percent, 4);
PERNIX_OFFSET(CorrectionLuStatusRec, waiting_number, 8);

typedef struct ParityCorrectionStatusListRec {
  CorrectionLuStatusRec lu[4096];
} ParityCorrectionStatusListRec;
PERNIX_SIZE(ParityCorrectionStatusListRec, 49152);
PERNIX_OFFSET(ParityCorrectionStatusListRec, lu, 0);

/* ---- drives ---- */

/* Identity of one drive; the strings are NUL-terminated in their buffers. */
typedef struct DiskDriveInformationRec {
  char vendor[9];
  char product[17];
  char revision[6];
  int32_t lastLBA;
  char drive_capacity[12];
  int32_t add_info_index;
  char serial[12];
  int32_t unit_type;
  int32_t unit_type_sub_code;
  int32_t drive_rotation;
} DiskDriveInformationRec;
PERNIX_SIZE(DiskDriveInformationRec, 76);
PERNIX_OFFSET(DiskDriveInformationRec, vendor, 0);
PERNIX_OFFSET(DiskDriveInformationRec, product, 9);
PERNIX_OFFSET(DiskDriveInformationRec, revision, 26);
PERNIX_OFFSET(DiskDriveInformationRec, lastLBA, 32);
PERNIX_OFFSET(DiskDriveInformationRec, drive_capacity, 36);
PERNIX_OFFSET(DiskDriveInformationRec, add_info_index, 48);
PERNIX_OFFSET(DiskDriveInformationRec, serial, 52);
PERNIX_OFFSET(DiskDriveInformationRec, unit_type, 64);
PERNIX_OFFSET(DiskDriveInformationRec, unit_type_sub_code, 68);
PERNIX_OFFSET(DiskDriveInformationRec, drive_rotation, 72);

/* One drive slot: position, mounted or not, attribute, state, and for a
 * spare the position of the drive it stands in for. */
typedef struct DiskDriveRec {
  int32_t port_no;
  int32_t row_no;
  int32_t mount;
  int32_t attribute;
  int32_t drv_state;
  int32_t spare_of_disk_port;
  int32_t spare_of_disk_row;
} DiskDriveRec;
PERNIX_SIZE(DiskDriveRec, 28);
PERNIX_OFFSET(DiskDriveRec, port_no, 0);
PERNIX_OFFSET(DiskDriveRec, row_no, 4);
PERNIX_OFFSET(DiskDriveRec, mount, 8);
PERNIX_OFFSET(DiskDriveRec, attribute, 12);
PERNIX_OFFSET(DiskDriveRec, drv_state, 16);
PERNIX_OFFSET(DiskDriveRec, spare_of_disk_port, 20);
PERNIX_OFFSET(DiskDriveRec, spare_of_disk_row, 24);

typedef struct DiskDriveRestorationRec {
  int32_t mode;
  int32_t restoration;
  int32_t dynamic_sparing;
  int32_t interval;
  int32_t unit_size;
  int32_t sparemode;
  int32_t no_copyback_allunit;
} DiskDriveRestorationRec;
PERNIX_SIZE(DiskDriveRestorationRec, 28);
PERNIX_OFFSET(DiskDriveRestorationRec, mode, 0);
PERNIX_OFFSET(DiskDriveRestorationRec, restoration, 4);
PERNIX_OFFSET(DiskDriveRestorationRec, dynamic_sparing, 8);
PERNIX_OFFSET(DiskDriveRestorationRec, interval, 12);
PERNIX_OFFSET(DiskDriveRestorationRec, unit_size, 16);
PERNIX_OFFSET(DiskDriveRestorationRec, sparemode, 20);
PERNIX_OFFSET(DiskDriveRestorationRec, no_copyback_allunit, 24);

/* Rebuild progress of a drive; `progress_ratio` in per cent. */
typedef struct DriveReconstructInformationRec {
  int32_t valid;
  int32_t status_code;
  int32_t progress_ratio;
  int32_t hdu_no;
  int32_t unit_no;
} DriveReconstructInformationRec;
PERNIX_SIZE(DriveReconstructInformationRec, 20);
PERNIX_OFFSET(DriveReconstructInformationRec, valid, 0);
PERNIX_OFFSET(DriveReconstructInformationRec, status_code, 4);
PERNIX_OFFSET(DriveReconstructInformationRec, progress_ratio, 8);
PERNIX_OFFSET(DriveReconstructInformationRec, hdu_no, 12);
PERNIX_OFFSET(DriveReconstructInformationRec, unit_no, 16);

typedef struct SweepInfoRec {
  int32_t sweep_valid;
  int32_t interval_time;
  int32_t stop_time;
  int32_t unload;
  int32_t onlineVerify;
} SweepInfoRec;
PERNIX_SIZE(SweepInfoRec, 20);
PERNIX_OFFSET(SweepInfoRec, sweep_valid, 0);
PERNIX_OFFSET(SweepInfoRec, interval_time, 4);
PERNIX_OFFSET(SweepInfoRec, stop_time, 8);
PERNIX_OFFSET(SweepInfoRec, unload, 12);
PERNIX_OFFSET(SweepInfoRec, onlineVerify, 16);

typedef struct DriveFlashInfoRec {
  int32_t compare_mode;
  int32_t drv_flash_time;
  int32_t drv_flash_io_count;
} DriveFlashInfoRec;
PERNIX_SIZE(DriveFlashInfoRec, 12);
PERNIX_OFFSET(DriveFlashInfoRec, compare_mode, 0);
PERNIX_OFFSET(DriveFlashInfoRec, drv_flash_time, 4);
PERNIX_OFFSET(DriveFlashInfoRec, drv_flash_io_count, 8);

typedef struct SmartInfoRec {
  int32_t smart_valid;
  int32_t reassign_thres;
} SmartInfoRec;
PERNIX_SIZE(SmartInfoRec, 8);
PERNIX_OFFSET(SmartInfoRec, smart_valid, 0);
PERNIX_OFFSET(SmartInfoRec, reassign_thres, 4);

/* SATA drive sweep, flash and SMART settings, three records held inline. */
typedef struct SATADriveInformationRec {
  SweepInfoRec sweep_info;
  DriveFlashInfoRec flash_info;
  SmartInfoRec smart_info;
} SATADriveInformationRec;
PERNIX_SIZE(SATADriveInformationRec, 40);
PERNIX_OFFSET(SATADriveInformationRec, sweep_info, 0);
PERNIX_OFFSET(SATADriveInformationRec, flash_info, 20);
PERNIX_OFFSET(SATADriveInformationRec, smart_info, 32);

typedef struct SATADriveRestorationRec {
  int32_t collect_copy_times;
} SATADriveRestorationRec;
PERNIX_SIZE(SATADriveRestorationRec, 4);
PERNIX_OFFSET(SATADriveRestorationRec, collect_copy_times, 0);

typedef struct DriveResponseDiagRec {
  int32_t valid;
  int32_t set_mode;
  int32_t mode;
  int32_t threshold;
  int32_t sata_diag;
  int32_t autodiag_threshold;
} DriveResponseDiagRec;
PERNIX_SIZE(DriveResponseDiagRec, 24);
PERNIX_OFFSET(DriveResponseDiagRec, valid, 0);
PERNIX_OFFSET(DriveResponseDiagRec, set_mode, 4);
PERNIX_OFFSET(DriveResponseDiagRec, mode, 8);
PERNIX_OFFSET(DriveResponseDiagRec, threshold, 12);
PERNIX_OFFSET(DriveResponseDiagRec, sata_diag, 16);
PERNIX_OFFSET(DriveResponseDiagRec, autodiag_threshold, 20);

/* Power saving of one RAID group. */
typedef struct SpinDownUpRGInfoRec {
  int32_t rgnum;
  int32_t rg_power_saving_status;
  int32_t rg_power_saving;
  int32_t spin_down_count;
  int32_t spin_error;
} SpinDownUpRGInfoRec;
PERNIX_SIZE(SpinDownUpRGInfoRec, 20);
PERNIX_OFFSET(SpinDownUpRGInfoRec, rgnum, 0);
PERNIX_OFFSET(SpinDownUpRGInfoRec, rg_power_saving_status, 4);
PERNIX_OFFSET(SpinDownUpRGInfoRec, rg_power_saving, 8);
PERNIX_OFFSET(SpinDownUpRGInfoRec, spin_down_count, 12);
PERNIX_OFFSET(SpinDownUpRGInfoRec, spin_error, 16);

/* Power saving of one LU. */
typedef struct SpinDownUpLuInfoRec {
  int32_t lun;
  int32_t lu_power_saving;
  int32_t lu_power_saving_detail;
} SpinDownUpLuInfoRec;
PERNIX_SIZE(SpinDownUpLuInfoRec, 12);
PERNIX_OFFSET(SpinDownUpLuInfoRec, lun, 0);
PERNIX_OFFSET(SpinDownUpLuInfoRec, lu_power_saving, 4);
PERNIX_OFFSET(SpinDownUpLuInfoRec, lu_power_saving_detail, 8);

/* Power saving of the unit: every RAID group and every LU slot, whatever the
 * counts say. */
typedef struct SpinDownUpInformationRec {
  int32_t option;
  int32_t rg_count;
  SpinDownUpRGInfoRec rg[90];
  int32_t lu_count;
  SpinDownUpLuInfoRec lu[4096];
} SpinDownUpInformationRec;
PERNIX_SIZE(SpinDownUpInformationRec, 50964);
PERNIX_OFFSET(SpinDownUpInformationRec, option, 0);
PERNIX_OFFSET(SpinDownUpInformationRec, rg_count, 4);
PERNIX_OFFSET(SpinDownUpInformationRec, rg, 8);
PERNIX_OFFSET(SpinDownUpInformationRec, lu_count, 1808);
PERNIX_OFFSET(SpinDownUpInformationRec, lu, 1812);

#pragma pack(pop)

PERNIX_BEGIN_DECLS

/* formatting and parity correction */
int KX_LogicalUnitFormat(const char* unit, int a, int b);
int KX_LogicalUnitFormatStatus(const char* unit, int lun, int* out);
int KX_LogicalUnitFormatImmediateCTL(const char* unit, int a, int b, int* out);
int KX_LogicalUnitFormatStatusList(const char* unit, LuFormatStatusListRec* list);
int KX_EntryFormatList(const char* unit, const FormatListRec* list);
int KX_GetFormatStatusList(const char* unit, FormatStatusListRec* list);
int KX_GetQuickFormatOption(const char* unit, const KXSessionInfoRec* session,
                            QuickFormatOptionRec* option);
int KX_SetQuickFormatOption(const char* unit, const KXSessionInfoRec* session,
                            const QuickFormatOptionRec* option);
int KX_EntryQuickFormatList(const char* unit, const KXSessionInfoRec* session,
                            const QuickFormatListRec* list);
int KX_GetQuickFormatStatusList(const char* unit, const KXSessionInfoRec* session,
                                QuickFormatStatusListRec* list);
int KX_EntryParityCorrectionList(const char* unit, const KXSessionInfoRec* session,
                                 const ParityCorrectionListRec* list);
int KX_GetParityCorrectionStatusList(const char* unit, const KXSessionInfoRec* session,
                                     ParityCorrectionStatusListRec* list);

/* drives */
int KX_GetDriveInformation(const char* unit, const KXSessionInfoRec* session, int a, int b,
                           DiskDriveInformationRec* info);
int KX_GetDriveInformationAll(const char* unit, const KXSessionInfoRec* session,
                              DiskDriveInformationRec* list /* [450] */);
int KX_GetDriveStatus(const char* unit, const KXSessionInfoRec* session,
                      DiskDriveRec* list /* [450] */);
int KX_DriveReconstructInformation(const char* unit, const KXSessionInfoRec* session, int a,
                                   int b, DriveReconstructInformationRec* info);
int KX_GetDiskDriveRestoration(const char* unit, const KXSessionInfoRec* session,
                               DiskDriveRestorationRec* rec);
int KX_SetDiskDriveRestoration(const char* unit, const KXSessionInfoRec* session,
                               const DiskDriveRestorationRec* rec);
int KX_GetSATADriveInformation(const char* unit, const KXSessionInfoRec* session,
                               SATADriveInformationRec* rec);
int KX_SetSATADriveInformation(const char* unit, const KXSessionInfoRec* session,
                               const SATADriveInformationRec* rec);
int KX_GetSATADriveRestoration(const char* unit, const KXSessionInfoRec* session,
                               SATADriveRestorationRec* rec);
int KX_SetSATADriveRestoration(const char* unit, const KXSessionInfoRec* session,
                               const SATADriveRestorationRec* rec);
int KX_GetDriveResponseDiag(const char* unit, const KXSessionInfoRec* session,
                            DriveResponseDiagRec* rec);
int KX_SetDriveResponseDiag(const char* unit, const KXSessionInfoRec* session,
                            const DriveResponseDiagRec* rec);
int KX_SetDriveMode(const char* unit, const KXSessionInfoRec* session, int a, int b, int c);
int KX_GetSpinDownUpInformation(const char* unit, const KXSessionInfoRec* session,
                                SpinDownUpInformationRec* rec);
int KX_SpinDownDriveByRG(const char* unit, const KXSessionInfoRec* session, int rgnum);
int KX_SpinUpDriveByRG(const char* unit, const KXSessionInfoRec* session, int rgnum);

PERNIX_END_DECLS

/* ==== end of formatting, parity correction and drives ==== */

/* ==== pools, virtual volumes, unified LUs, set-up wizard and LU cache ==== */

#pragma pack(push, 1)

/* ---- pools, virtual volumes and unified LUs ---- */

/* One pool of a controller; its layout is the library's own business. */
typedef struct PoolDetailInfoRec {
  uint8_t detail[292];
} PoolDetailInfoRec;
PERNIX_SIZE(PoolDetailInfoRec, 292);

typedef struct PoolCtlInfoRec {
  int32_t pool_enable_count;
  PoolDetailInfoRec pool[1];
} PoolCtlInfoRec;
PERNIX_SIZE(PoolCtlInfoRec, 296);
PERNIX_OFFSET(PoolCtlInfoRec, pool_enable_count, 0);
PERNIX_OFFSET(PoolCtlInfoRec, pool, 4);

/* The pools of a unit, one entry per controller. */
typedef struct PoolInfoRec {
  int32_t option;
  PoolCtlInfoRec ctl[2];
} PoolInfoRec;
PERNIX_SIZE(PoolInfoRec, 596);
PERNIX_OFFSET(PoolInfoRec, option, 0);
PERNIX_OFFSET(PoolInfoRec, ctl, 4);

typedef struct ChgPoolInfoRec {
  int32_t ctl_no;
  int32_t pool_no;
  int32_t poolinfo_chg_index;
  int32_t threshold;
} ChgPoolInfoRec;
PERNIX_SIZE(ChgPoolInfoRec, 16);
PERNIX_OFFSET(ChgPoolInfoRec, ctl_no, 0);
PERNIX_OFFSET(ChgPoolInfoRec, pool_no, 4);
PERNIX_OFFSET(ChgPoolInfoRec, poolinfo_chg_index, 8);
PERNIX_OFFSET(ChgPoolInfoRec, threshold, 12);

/* LUs to add to a pool: a count and up to 64 LU numbers. */
typedef struct PoolLuAddListRec {
  int32_t lu_count;
  int32_t lu[64];
} PoolLuAddListRec;
PERNIX_SIZE(PoolLuAddListRec, 260);
PERNIX_OFFSET(PoolLuAddListRec, lu_count, 0);
PERNIX_OFFSET(PoolLuAddListRec, lu, 4);

/* Joining child LUs to a parent LU (or parting them). */
typedef struct IntegrationLUSetRec {
  int32_t operation;
  int32_t parent_lun;
  int32_t child_lun;
  int32_t child_count;
  int32_t child_lu[127];
} IntegrationLUSetRec;
PERNIX_SIZE(IntegrationLUSetRec, 524);
PERNIX_OFFSET(IntegrationLUSetRec, operation, 0);
PERNIX_OFFSET(IntegrationLUSetRec, parent_lun, 4);
PERNIX_OFFSET(IntegrationLUSetRec, child_lun, 8);
PERNIX_OFFSET(IntegrationLUSetRec, child_count, 12);
PERNIX_OFFSET(IntegrationLUSetRec, child_lu, 16);

/* Per LU number: the single LUs and the unified LUs. */
typedef struct PINInformationRec {
  int32_t unite_option;
  int32_t single_lu[4096];
  int32_t unite_lu[4096];
} PINInformationRec;
PERNIX_SIZE(PINInformationRec, 32772);
PERNIX_OFFSET(PINInformationRec, unite_option, 0);
PERNIX_OFFSET(PINInformationRec, single_lu, 4);
PERNIX_OFFSET(PINInformationRec, unite_lu, 16388);

/* One unified LU and its children. */
typedef struct UniteLURec {
  int32_t unite_info;
  int32_t status;
  int32_t capacity;
  int32_t child_lu_count;
  int32_t child_lun[512];
} UniteLURec;
PERNIX_SIZE(UniteLURec, 2064);
PERNIX_OFFSET(UniteLURec, unite_info, 0);
PERNIX_OFFSET(UniteLURec, status, 4);
PERNIX_OFFSET(UniteLURec, capacity, 8);
PERNIX_OFFSET(UniteLURec, child_lu_count, 12);
PERNIX_OFFSET(UniteLURec, child_lun, 16);

typedef struct IntegrationLUInfoRec {
  int32_t integration_lu;
  UniteLURec unite_info[512];
} IntegrationLUInfoRec;
PERNIX_SIZE(IntegrationLUInfoRec, 1056772);
PERNIX_OFFSET(IntegrationLUInfoRec, integration_lu, 0);
PERNIX_OFFSET(IntegrationLUInfoRec, unite_info, 4);

/* One LU of a unified LU's chain: `next_lun` names the next child. */
typedef struct UniteLU2Rec {
  int32_t unite_info;
  int32_t status;
  int32_t capacity;
  int32_t child_lu_count;
  int32_t next_lun;
} UniteLU2Rec;
PERNIX_SIZE(UniteLU2Rec, 20);
PERNIX_OFFSET(UniteLU2Rec, unite_info, 0);
PERNIX_OFFSET(UniteLU2Rec, status, 4);
PERNIX_OFFSET(UniteLU2Rec, capacity, 8);
PERNIX_OFFSET(UniteLU2Rec, child_lu_count, 12);
PERNIX_OFFSET(UniteLU2Rec, next_lun, 16);

typedef struct IntegrationLUInfo2Rec {
  int32_t integration_lu;
  int32_t parent_count;
  int32_t parent_lu[4096];
  UniteLU2Rec unite_info[4096];
} IntegrationLUInfo2Rec;
PERNIX_SIZE(IntegrationLUInfo2Rec, 98312);
PERNIX_OFFSET(IntegrationLUInfo2Rec, integration_lu, 0);
PERNIX_OFFSET(IntegrationLUInfo2Rec, parent_count, 4);
PERNIX_OFFSET(IntegrationLUInfo2Rec, parent_lu, 8);
PERNIX_OFFSET(IntegrationLUInfo2Rec, unite_info, 16392);

/* A label and its replacement. */
typedef struct KXLabelRec {
  char oldlabel[8];
  char newlabel[8];
} KXLabelRec;
PERNIX_SIZE(KXLabelRec, 16);
PERNIX_OFFSET(KXLabelRec, oldlabel, 0);
PERNIX_OFFSET(KXLabelRec, newlabel, 8);

/* Label tables of KX_GetLabelList and KX_GetLabelList2. */
enum { PERNIX_LABELS = 20, PERNIX_LABELS2 = 64 };

typedef struct SpareDiskRec {
  int32_t unit_no;
  int32_t hdu_no;
} SpareDiskRec;
PERNIX_SIZE(SpareDiskRec, 8);
PERNIX_OFFSET(SpareDiskRec, unit_no, 0);
PERNIX_OFFSET(SpareDiskRec, hdu_no, 4);

enum { PERNIX_SPARE_DISKS = 30 };

/* A unit's RAID group and LU configuration as exported to a file. */
typedef struct RaidLUInformationRec {
  RaidGroupInformationRec rgparam;
  LogicalUnitRec luparam[PERNIX_LOGICAL_UNITS];
  int32_t spare_count;
  SpareDiskRec spareinfo[PERNIX_SPARE_DISKS];
} RaidLUInformationRec;
PERNIX_SIZE(RaidLUInformationRec, 372576);
PERNIX_OFFSET(RaidLUInformationRec, rgparam, 0);
PERNIX_OFFSET(RaidLUInformationRec, luparam, 11884);
PERNIX_OFFSET(RaidLUInformationRec, spare_count, 372332);
PERNIX_OFFSET(RaidLUInformationRec, spareinfo, 372336);

/* ---- set-up wizard ---- */

typedef struct WZDualConfigRec {
  int32_t startup_attr;
  int32_t data_share;
  int32_t spare_disk;
  int32_t connection_mode;
  char serial[9];
  uint8_t port_d_ctl[4]; /* Java int[4], one byte each */
  uint8_t unused[3];
  int32_t id_taking_over;
  int32_t port_cnnct_mode1[2][2];
  int32_t port_cnnct_mode2[2][2];
  int32_t delay_time;
  int32_t hp2_support;
  int32_t add_bat_unit;
} WZDualConfigRec;
PERNIX_SIZE(WZDualConfigRec, 80);
PERNIX_OFFSET(WZDualConfigRec, startup_attr, 0);
PERNIX_OFFSET(WZDualConfigRec, data_share, 4);
PERNIX_OFFSET(WZDualConfigRec, spare_disk, 8);
PERNIX_OFFSET(WZDualConfigRec, connection_mode, 12);
PERNIX_OFFSET(WZDualConfigRec, serial, 16);
PERNIX_OFFSET(WZDualConfigRec, port_d_ctl, 25);
PERNIX_OFFSET(WZDualConfigRec, unused, 29);
PERNIX_OFFSET(WZDualConfigRec, id_taking_over, 32);
PERNIX_OFFSET(WZDualConfigRec, port_cnnct_mode1, 36);
PERNIX_OFFSET(WZDualConfigRec, port_cnnct_mode2, 52);
PERNIX_OFFSET(WZDualConfigRec, delay_time, 68);
PERNIX_OFFSET(WZDualConfigRec, hp2_support, 72);
PERNIX_OFFSET(WZDualConfigRec, add_bat_unit, 76);

typedef struct WZDriveCapacityRec {
  int32_t row[6];
  int32_t spare;
} WZDriveCapacityRec;
PERNIX_SIZE(WZDriveCapacityRec, 28);
PERNIX_OFFSET(WZDriveCapacityRec, row, 0);
PERNIX_OFFSET(WZDriveCapacityRec, spare, 24);

/* Options by interface; WZOption, WZEnhancedOption and WZPortOption share it. */
typedef struct WZOptionRec {
  int32_t common;
  int32_t scsi;
  int32_t fibre;
} WZOptionRec;
PERNIX_SIZE(WZOptionRec, 12);
PERNIX_OFFSET(WZOptionRec, common, 0);
PERNIX_OFFSET(WZOptionRec, scsi, 4);
PERNIX_OFFSET(WZOptionRec, fibre, 8);

typedef struct WZTargetLunListRec {
  uint8_t lun[128];
} WZTargetLunListRec;
PERNIX_SIZE(WZTargetLunListRec, 128);
PERNIX_OFFSET(WZTargetLunListRec, lun, 0);

typedef struct WZTargetConfigRec {
  int8_t single;
  uint8_t multi[16];
  WZTargetLunListRec mapping[16];
} WZTargetConfigRec;
PERNIX_SIZE(WZTargetConfigRec, 2065);
PERNIX_OFFSET(WZTargetConfigRec, single, 0);
PERNIX_OFFSET(WZTargetConfigRec, multi, 1);
PERNIX_OFFSET(WZTargetConfigRec, mapping, 17);

typedef struct WZTargetIdRec {
  int32_t ctrl_flag;
  int32_t target_id_mode;
  WZTargetConfigRec target_config[4];
} WZTargetIdRec;
PERNIX_SIZE(WZTargetIdRec, 8268);
PERNIX_OFFSET(WZTargetIdRec, ctrl_flag, 0);
PERNIX_OFFSET(WZTargetIdRec, target_id_mode, 4);
PERNIX_OFFSET(WZTargetIdRec, target_config, 8);

typedef struct WZModeParamRec {
  int32_t striping;
  int32_t buzzer;
  int32_t lu_size_report;
  int32_t reset;
  int32_t failures;
} WZModeParamRec;
PERNIX_SIZE(WZModeParamRec, 20);
PERNIX_OFFSET(WZModeParamRec, striping, 0);
PERNIX_OFFSET(WZModeParamRec, buzzer, 4);
PERNIX_OFFSET(WZModeParamRec, lu_size_report, 8);
PERNIX_OFFSET(WZModeParamRec, reset, 12);
PERNIX_OFFSET(WZModeParamRec, failures, 16);

typedef struct WZInquiryRec {
  int32_t command_que;
  int32_t ansi_version;
  int32_t cache_mode;
  char vendor[9];
  char product[17];
  char rom_micro[3];
  char ram_micro[3];
  char web_title[33];
  uint8_t unused[3];
  int32_t link_separation;
} WZInquiryRec;
PERNIX_SIZE(WZInquiryRec, 84);
PERNIX_OFFSET(WZInquiryRec, command_que, 0);
PERNIX_OFFSET(WZInquiryRec, ansi_version, 4);
PERNIX_OFFSET(WZInquiryRec, cache_mode, 8);
PERNIX_OFFSET(WZInquiryRec, vendor, 12);
PERNIX_OFFSET(WZInquiryRec, product, 21);
PERNIX_OFFSET(WZInquiryRec, rom_micro, 38);
PERNIX_OFFSET(WZInquiryRec, ram_micro, 41);
PERNIX_OFFSET(WZInquiryRec, web_title, 44);
PERNIX_OFFSET(WZInquiryRec, unused, 77);
PERNIX_OFFSET(WZInquiryRec, link_separation, 80);

typedef struct WZPortTypeRec {
  int32_t port_type;
  int32_t port_mode[4];
  WZOptionRec port_option[4];
} WZPortTypeRec;
PERNIX_SIZE(WZPortTypeRec, 68);
PERNIX_OFFSET(WZPortTypeRec, port_type, 0);
PERNIX_OFFSET(WZPortTypeRec, port_mode, 4);
PERNIX_OFFSET(WZPortTypeRec, port_option, 20);

typedef struct WZRomResponseRec {
  int32_t mode;
  int32_t port_save_data[4];
} WZRomResponseRec;
PERNIX_SIZE(WZRomResponseRec, 20);
PERNIX_OFFSET(WZRomResponseRec, mode, 0);
PERNIX_OFFSET(WZRomResponseRec, port_save_data, 4);

typedef struct WZControllerOptionRec {
  int32_t id_mode;
  char id_front[9];
  char id_rear[3];
  int32_t error_out_mode;
  int32_t write_verify_mode;
} WZControllerOptionRec;
PERNIX_SIZE(WZControllerOptionRec, 24);
PERNIX_OFFSET(WZControllerOptionRec, id_mode, 0);
PERNIX_OFFSET(WZControllerOptionRec, id_front, 4);
PERNIX_OFFSET(WZControllerOptionRec, id_rear, 13);
PERNIX_OFFSET(WZControllerOptionRec, error_out_mode, 16);
PERNIX_OFFSET(WZControllerOptionRec, write_verify_mode, 20);

/* The two flags read back unsigned (0 to 255). */
typedef struct WZLanConfigRec {
  uint8_t lan_connect;
  uint8_t dhcp_mode;
  char ip_address[16];
  char subnet[16];
  char gateway[16];
  char ether[18];
} WZLanConfigRec;
PERNIX_SIZE(WZLanConfigRec, 68);
PERNIX_OFFSET(WZLanConfigRec, lan_connect, 0);
PERNIX_OFFSET(WZLanConfigRec, dhcp_mode, 1);
PERNIX_OFFSET(WZLanConfigRec, ip_address, 2);
PERNIX_OFFSET(WZLanConfigRec, subnet, 18);
PERNIX_OFFSET(WZLanConfigRec, gateway, 34);
PERNIX_OFFSET(WZLanConfigRec, ether, 50);

/* `board_type` reads back signed, `rate` unsigned. */
typedef struct WZSyncPortRec {
  int8_t board_type;
  uint8_t rate;
} WZSyncPortRec;
PERNIX_SIZE(WZSyncPortRec, 2);
PERNIX_OFFSET(WZSyncPortRec, board_type, 0);
PERNIX_OFFSET(WZSyncPortRec, rate, 1);

typedef struct WZSyncControlRec {
  WZSyncPortRec port_val[4];
} WZSyncControlRec;
PERNIX_SIZE(WZSyncControlRec, 8);
PERNIX_OFFSET(WZSyncControlRec, port_val, 0);

/* The whole initial configuration of a unit; pairs are one per controller. */
typedef struct WizardParamRec {
  int32_t fd_backup;
  WZDualConfigRec dual_conf;
  WZDriveCapacityRec drive_capacity;
  WZOptionRec option;
  WZOptionRec e_option;
  WZOptionRec e_option2;
  WZTargetIdRec target_id[2];
  WZModeParamRec mode_param;
  WZInquiryRec inquiry;
  WZPortTypeRec port_type[2];
  WZRomResponseRec rom_response[2];
  WZControllerOptionRec ctl_opt[2];
  WZLanConfigRec lan_conf[2];
  WZSyncControlRec sync_control[2];
} WizardParamRec;
PERNIX_SIZE(WizardParamRec, 17164);
PERNIX_OFFSET(WizardParamRec, fd_backup, 0);
PERNIX_OFFSET(WizardParamRec, dual_conf, 4);
PERNIX_OFFSET(WizardParamRec, drive_capacity, 84);
PERNIX_OFFSET(WizardParamRec, option, 112);
PERNIX_OFFSET(WizardParamRec, e_option, 124);
PERNIX_OFFSET(WizardParamRec, e_option2, 136);
PERNIX_OFFSET(WizardParamRec, target_id, 148);
PERNIX_OFFSET(WizardParamRec, mode_param, 16684);
PERNIX_OFFSET(WizardParamRec, inquiry, 16704);
PERNIX_OFFSET(WizardParamRec, port_type, 16788);
PERNIX_OFFSET(WizardParamRec, rom_response, 16924);
PERNIX_OFFSET(WizardParamRec, ctl_opt, 16964);
PERNIX_OFFSET(WizardParamRec, lan_conf, 17012);
PERNIX_OFFSET(WizardParamRec, sync_control, 17148);

typedef struct NowWZPortOptionsRec {
  int32_t mode[3][2];
  int32_t hp2_support;
} NowWZPortOptionsRec;
PERNIX_SIZE(NowWZPortOptionsRec, 28);
PERNIX_OFFSET(NowWZPortOptionsRec, mode, 0);
PERNIX_OFFSET(NowWZPortOptionsRec, hp2_support, 24);

typedef struct NowWZCtrlIdRec {
  char id_front[9];
  char id_rear[3];
  int32_t ctrl_name_mode;
} NowWZCtrlIdRec;
PERNIX_SIZE(NowWZCtrlIdRec, 16);
PERNIX_OFFSET(NowWZCtrlIdRec, id_front, 0);
PERNIX_OFFSET(NowWZCtrlIdRec, id_rear, 9);
PERNIX_OFFSET(NowWZCtrlIdRec, ctrl_name_mode, 12);

/* The current port options and controller identifier. */
typedef struct NowWZParameterRec {
  int32_t fd_backup;
  NowWZPortOptionsRec port_option;
  NowWZCtrlIdRec ctrl_id;
} NowWZParameterRec;
PERNIX_SIZE(NowWZParameterRec, 48);
PERNIX_OFFSET(NowWZParameterRec, fd_backup, 0);
PERNIX_OFFSET(NowWZParameterRec, port_option, 4);
PERNIX_OFFSET(NowWZParameterRec, ctrl_id, 32);

/* The LU set-up contents the wizard produced, as text. */
typedef struct LuWZSetContentsRec {
  char setcontens[32768];
} LuWZSetContentsRec;
PERNIX_SIZE(LuWZSetContentsRec, 32768);
PERNIX_OFFSET(LuWZSetContentsRec, setcontens, 0);

/* ---- LU cache settings ---- */

/* Staging sizes by RAID level (0, 1, 5), next-read staging and head size. */
typedef struct PrefetchInformationRec {
  int32_t stg_rd0;
  int32_t stg_rd1;
  int32_t stg_rd5;
  int32_t stg_next;
  int32_t stg_hed_size;
} PrefetchInformationRec;
PERNIX_SIZE(PrefetchInformationRec, 20);
PERNIX_OFFSET(PrefetchInformationRec, stg_rd0, 0);
PERNIX_OFFSET(PrefetchInformationRec, stg_rd1, 4);
PERNIX_OFFSET(PrefetchInformationRec, stg_rd5, 8);
PERNIX_OFFSET(PrefetchInformationRec, stg_next, 12);
PERNIX_OFFSET(PrefetchInformationRec, stg_hed_size, 16);

/* Cache partition numbers indexed by LU number. */
typedef struct LuCachePartitionRec {
  int32_t option;
  int32_t support_index;
  int32_t valid_index;
  int32_t current_prt_num[4096];
  int32_t reserve_prt_num[4096];
  int32_t now_prt_num[4096];
  int32_t pair_prt_num[4096];
} LuCachePartitionRec;
PERNIX_SIZE(LuCachePartitionRec, 65548);
PERNIX_OFFSET(LuCachePartitionRec, option, 0);
PERNIX_OFFSET(LuCachePartitionRec, support_index, 4);
PERNIX_OFFSET(LuCachePartitionRec, valid_index, 8);
PERNIX_OFFSET(LuCachePartitionRec, current_prt_num, 12);
PERNIX_OFFSET(LuCachePartitionRec, reserve_prt_num, 16396);
PERNIX_OFFSET(LuCachePartitionRec, now_prt_num, 32780);
PERNIX_OFFSET(LuCachePartitionRec, pair_prt_num, 49164);

typedef struct PrefetchTuningLURangeRec {
  int32_t multi_stream_read;
  int32_t multi_stream_write;
  int32_t next_pre_mode;
  int32_t pre_std;
} PrefetchTuningLURangeRec;
PERNIX_SIZE(PrefetchTuningLURangeRec, 16);
PERNIX_OFFSET(PrefetchTuningLURangeRec, multi_stream_read, 0);
PERNIX_OFFSET(PrefetchTuningLURangeRec, multi_stream_write, 4);
PERNIX_OFFSET(PrefetchTuningLURangeRec, next_pre_mode, 8);
PERNIX_OFFSET(PrefetchTuningLURangeRec, pre_std, 12);

typedef struct PrefetchLUInfoRec {
  int32_t pre_size_basis;
  int32_t pre_size_fixation;
} PrefetchLUInfoRec;
PERNIX_SIZE(PrefetchLUInfoRec, 8);
PERNIX_OFFSET(PrefetchLUInfoRec, pre_size_basis, 0);
PERNIX_OFFSET(PrefetchLUInfoRec, pre_size_fixation, 4);

/* Unit-wide prefetch settings and the same per LU; `setting_range` says
 * which of the two applies. */
typedef struct PrefetchTuningRec {
  int32_t support_index;
  int32_t valid_index;
  int32_t set_mode;
  int32_t setting_range;
  int32_t multi_stream_read;
  int32_t multi_stream_write;
  int32_t seq_count;
  int32_t next_pre_mode;
  int32_t pre_std;
  PrefetchTuningLURangeRec lu_range[4096];
  PrefetchLUInfoRec lu[4096];
} PrefetchTuningRec;
PERNIX_SIZE(PrefetchTuningRec, 98340);
PERNIX_OFFSET(PrefetchTuningRec, support_index, 0);
PERNIX_OFFSET(PrefetchTuningRec, valid_index, 4);
PERNIX_OFFSET(PrefetchTuningRec, set_mode, 8);
PERNIX_OFFSET(PrefetchTuningRec, setting_range, 12);
PERNIX_OFFSET(PrefetchTuningRec, multi_stream_read, 16);
PERNIX_OFFSET(PrefetchTuningRec, multi_stream_write, 20);
PERNIX_OFFSET(PrefetchTuningRec, seq_count, 24);
PERNIX_OFFSET(PrefetchTuningRec, next_pre_mode, 28);
PERNIX_OFFSET(PrefetchTuningRec, pre_std, 32);
PERNIX_OFFSET(PrefetchTuningRec, lu_range, 36);
PERNIX_OFFSET(PrefetchTuningRec, lu, 65572);

/* The controller-resident ("turbo") LU of one controller. */
typedef struct TurboLuInfoRec {
  int32_t current_status;
  int32_t current_assign;
  int32_t current_lun;
  int32_t reserve_assign;
  int32_t reserve_lun;
} TurboLuInfoRec;
PERNIX_SIZE(TurboLuInfoRec, 20);
PERNIX_OFFSET(TurboLuInfoRec, current_status, 0);
PERNIX_OFFSET(TurboLuInfoRec, current_assign, 4);
PERNIX_OFFSET(TurboLuInfoRec, current_lun, 8);
PERNIX_OFFSET(TurboLuInfoRec, reserve_assign, 12);
PERNIX_OFFSET(TurboLuInfoRec, reserve_lun, 16);

typedef struct TurboLuRec {
  int32_t option;
  TurboLuInfoRec ctl[2];
} TurboLuRec;
PERNIX_SIZE(TurboLuRec, 44);
PERNIX_OFFSET(TurboLuRec, option, 0);
PERNIX_OFFSET(TurboLuRec, ctl, 4);

#pragma pack(pop)

PERNIX_BEGIN_DECLS

/* pools, virtual volumes and unified LUs */
int KX_GetPoolInformation(const char* unit, const KXSessionInfoRec* session, PoolInfoRec* info);
int KX_ChangePoolInformation(const char* unit, const KXSessionInfoRec* session,
                             const ChgPoolInfoRec* change);
int KX_PoolLUAdd(const char* unit, const KXSessionInfoRec* session, int a, int b, int c);
int KX_PoolLUAddList(const char* unit, const KXSessionInfoRec* session, int a, int b,
                     const PoolLuAddListRec* list);
int KX_PoolLUAllDelete(const char* unit, const KXSessionInfoRec* session, int a, int b);
int KX_CreateVVOL(const char* unit, const KXSessionInfoRec* session, int a, int b, int c);
int KX_DeleteVVOL(const char* unit, const KXSessionInfoRec* session, int a, int b);
int KX_SetIntegrationLU(const char* unit, const KXSessionInfoRec* session,
                        const IntegrationLUSetRec* set);
int KX_IntegrationLUInfo(const char* unit, IntegrationLUInfoRec* info);
int KX_IntegrationLUInfo2(const char* unit, const KXSessionInfoRec* session,
                          IntegrationLUInfo2Rec* info);
int KX_GetIntegrationPinInfo(const char* unit, const KXSessionInfoRec* session,
                             PINInformationRec* info);
int KX_GetLabelList(KXLabelRec* labels /* [20] */, int* count);
int KX_GetLabelList2(KXLabelRec* labels /* [64] */, int* count);
int KX_RaidLuExport(const char* unit, const KXSessionInfoRec* session, const char* path);
int KX_RaidLuImportEx(const char* unit, const KXSessionInfoRec* session, const char* path,
                      RaidLUInformationRec* info);
int KX_RaidLuImport(const char* unit, const char* path, RaidGroupRec* groups /* [90] */,
                    LogicalUnitRec* lus /* [4096] */);

/* set-up wizard */
int KX_GetWizardParam(const char* unit, const char* path, int x, WizardParamRec* param);
int KX_SetWizardParam(const char* unit, const WizardParamRec* param, const char* path, int x);
int KX_TestWizardParam(const char* unit, const WizardParamRec* param, const char* path, int x);
int KX_GetNowWZParam(const char* unit, int x, NowWZParameterRec* param);
int KX_SetNowWZParam(const char* unit, int x, const NowWZParameterRec* param);
int KX_LuWizardOutput(const char* unit, const KXSessionInfoRec* session, const char* path,
                      const LuWZSetContentsRec* contents);

/* LU cache settings */
int KX_GetPrefetchInformation(const char* unit, const KXSessionInfoRec* session,
                              PrefetchInformationRec* info);
int KX_SetPrefetchInformation(const char* unit, const KXSessionInfoRec* session,
                              const PrefetchInformationRec* info);
int KX_GetLuCachePartition(const char* unit, const KXSessionInfoRec* session,
                           LuCachePartitionRec* partition);
int KX_SetLuCachePartition(const char* unit, const KXSessionInfoRec* session,
                           const LuCachePartitionRec* partition);
int KX_GetPrefetchTuning(const char* unit, const KXSessionInfoRec* session,
                         PrefetchTuningRec* tuning);
int KX_SetPrefetchTuning(const char* unit, const KXSessionInfoRec* session,
                         const PrefetchTuningRec* tuning);
int KX_GetTurboLU(const char* unit, const KXSessionInfoRec* session, TurboLuRec* turbo);
int KX_SetTurboLU(const char* unit, const KXSessionInfoRec* session, const TurboLuRec* turbo);

PERNIX_END_DECLS

/* ==== end of pools, virtual volumes, unified LUs, set-up wizard and LU cache ==== */

#endif
