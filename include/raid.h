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

/* ==== end of formatting, parity correction and drives ==== */

#endif
