/* Copy pairs, command devices, differential-management LUs and volume migration. */
#ifndef PERNIX_REPLICATION_H
#define PERNIX_REPLICATION_H

#include "pernix_common.h"
#include "session.h"

#pragma pack(push, 1)

/* ---- copy pairs ---- */

typedef struct PoolDetailCapaRec {
  int32_t pool_no;
  int32_t poolcapa_h;
  int32_t poolcapa_l;
} PoolDetailCapaRec;
PERNIX_SIZE(PoolDetailCapaRec, 12);
PERNIX_OFFSET(PoolDetailCapaRec, pool_no, 0);
PERNIX_OFFSET(PoolDetailCapaRec, poolcapa_h, 4);
PERNIX_OFFSET(PoolDetailCapaRec, poolcapa_l, 8);

/* Pool of one controller. */
typedef struct PoolCtlCapaRec {
  int32_t pool_enable_count;
  PoolDetailCapaRec pool[1];
} PoolCtlCapaRec;
PERNIX_SIZE(PoolCtlCapaRec, 16);
PERNIX_OFFSET(PoolCtlCapaRec, pool_enable_count, 0);
PERNIX_OFFSET(PoolCtlCapaRec, pool, 4);

typedef struct PairCreateTimeRec {
  int32_t year;
  int32_t month;
  int32_t day;
  int32_t hour;
  int32_t minute;
  int32_t second;
} PairCreateTimeRec;
PERNIX_SIZE(PairCreateTimeRec, 24);
PERNIX_OFFSET(PairCreateTimeRec, year, 0);
PERNIX_OFFSET(PairCreateTimeRec, month, 4);
PERNIX_OFFSET(PairCreateTimeRec, day, 8);
PERNIX_OFFSET(PairCreateTimeRec, hour, 12);
PERNIX_OFFSET(PairCreateTimeRec, minute, 16);
PERNIX_OFFSET(PairCreateTimeRec, second, 20);

/* One mirror of a primary LU. */
typedef struct MirrorLUInfoRec {
  int32_t mirror_no;
  int32_t lun;
  int32_t ctl_no;
  int32_t pool_no;
  int32_t pair_status;
  int32_t usedcapa;
  int32_t changed_rate;
  PairCreateTimeRec time;
} MirrorLUInfoRec;
PERNIX_SIZE(MirrorLUInfoRec, 52);
PERNIX_OFFSET(MirrorLUInfoRec, mirror_no, 0);
PERNIX_OFFSET(MirrorLUInfoRec, lun, 4);
PERNIX_OFFSET(MirrorLUInfoRec, ctl_no, 8);
PERNIX_OFFSET(MirrorLUInfoRec, pool_no, 12);
PERNIX_OFFSET(MirrorLUInfoRec, pair_status, 16);
PERNIX_OFFSET(MirrorLUInfoRec, usedcapa, 20);
PERNIX_OFFSET(MirrorLUInfoRec, changed_rate, 24);
PERNIX_OFFSET(MirrorLUInfoRec, time, 28);

/* A primary LU and its 15 mirror slots. */
typedef struct PairLUInfoRec {
  int32_t lun;
  int32_t capacity;
  int32_t pool_usedcapa_h;
  int32_t pool_usedcapa_l;
  int32_t pool_usedrate;
  int32_t mirror_count;
  MirrorLUInfoRec m_info[15];
} PairLUInfoRec;
PERNIX_SIZE(PairLUInfoRec, 804);
PERNIX_OFFSET(PairLUInfoRec, lun, 0);
PERNIX_OFFSET(PairLUInfoRec, capacity, 4);
PERNIX_OFFSET(PairLUInfoRec, pool_usedcapa_h, 8);
PERNIX_OFFSET(PairLUInfoRec, pool_usedcapa_l, 12);
PERNIX_OFFSET(PairLUInfoRec, pool_usedrate, 16);
PERNIX_OFFSET(PairLUInfoRec, mirror_count, 20);
PERNIX_OFFSET(PairLUInfoRec, m_info, 24);

enum { PERNIX_PAIR_LUS = 2046 };

/* Snapshot pairs of the unit: every LU slot, whatever pair_count says. */
typedef struct PairInfoRec {
  int32_t option;
  PoolCtlCapaRec ctl[2];
  int32_t pair_count;
  PairLUInfoRec lu[PERNIX_PAIR_LUS];
} PairInfoRec;
PERNIX_SIZE(PairInfoRec, 1645024);
PERNIX_OFFSET(PairInfoRec, option, 0);
PERNIX_OFFSET(PairInfoRec, ctl, 4);
PERNIX_OFFSET(PairInfoRec, pair_count, 36);
PERNIX_OFFSET(PairInfoRec, lu, 40);

typedef struct MirrexLuInfoRec {
  int32_t lun;
  int32_t pair_status;
  int32_t pair_attr;
  int32_t changed_rate;
  char remote_type[17];
  char remote_serial[17];
  char remote_ldev[6];
} MirrexLuInfoRec;
PERNIX_SIZE(MirrexLuInfoRec, 56);
PERNIX_OFFSET(MirrexLuInfoRec, lun, 0);
PERNIX_OFFSET(MirrexLuInfoRec, pair_status, 4);
PERNIX_OFFSET(MirrexLuInfoRec, pair_attr, 8);
PERNIX_OFFSET(MirrexLuInfoRec, changed_rate, 12);
PERNIX_OFFSET(MirrexLuInfoRec, remote_type, 16);
PERNIX_OFFSET(MirrexLuInfoRec, remote_serial, 33);
PERNIX_OFFSET(MirrexLuInfoRec, remote_ldev, 50);

typedef struct MirrexInformationRec {
  int32_t option;
  int32_t pair_count;
  MirrexLuInfoRec lu[4096];
} MirrexInformationRec;
PERNIX_SIZE(MirrexInformationRec, 229384);
PERNIX_OFFSET(MirrexInformationRec, option, 0);
PERNIX_OFFSET(MirrexInformationRec, pair_count, 4);
PERNIX_OFFSET(MirrexInformationRec, lu, 8);

typedef struct FarsyncLuInfoRec {
  int32_t support_index;
  int32_t valid_index;
  int32_t lun;
  int32_t pair_status;
  int32_t pair_attr;
  int32_t changed_rate;
  char remote_serial[20];
  int32_t remote_lu;
} FarsyncLuInfoRec;
PERNIX_SIZE(FarsyncLuInfoRec, 48);
PERNIX_OFFSET(FarsyncLuInfoRec, support_index, 0);
PERNIX_OFFSET(FarsyncLuInfoRec, valid_index, 4);
PERNIX_OFFSET(FarsyncLuInfoRec, lun, 8);
PERNIX_OFFSET(FarsyncLuInfoRec, pair_status, 12);
PERNIX_OFFSET(FarsyncLuInfoRec, pair_attr, 16);
PERNIX_OFFSET(FarsyncLuInfoRec, changed_rate, 20);
PERNIX_OFFSET(FarsyncLuInfoRec, remote_serial, 24);
PERNIX_OFFSET(FarsyncLuInfoRec, remote_lu, 44);

typedef struct FarsyncPairInformationRec {
  int32_t option;
  int32_t pair_count;
  FarsyncLuInfoRec lu[4096];
} FarsyncPairInformationRec;
PERNIX_SIZE(FarsyncPairInformationRec, 196616);
PERNIX_OFFSET(FarsyncPairInformationRec, option, 0);
PERNIX_OFFSET(FarsyncPairInformationRec, pair_count, 4);
PERNIX_OFFSET(FarsyncPairInformationRec, lu, 8);

typedef struct DateTimeRec {
  int32_t year;
  int32_t month;
  int32_t day;
  int32_t hour;
  int32_t minute;
  int32_t second;
} DateTimeRec;
PERNIX_SIZE(DateTimeRec, 24);
PERNIX_OFFSET(DateTimeRec, year, 0);
PERNIX_OFFSET(DateTimeRec, month, 4);
PERNIX_OFFSET(DateTimeRec, day, 8);
PERNIX_OFFSET(DateTimeRec, hour, 12);
PERNIX_OFFSET(DateTimeRec, minute, 16);
PERNIX_OFFSET(DateTimeRec, second, 20);

typedef struct FarsyncAsyncLuInfoRec {
  int32_t lun;
  int32_t pair_status;
  int32_t pair_attr;
  int32_t ctg_num;
  int32_t lu_capacity;
  int32_t remote_lu;
  char remote_serial[20];
  int32_t member_valid;
  int32_t synchronized_rate;
  int32_t difference_capacity;
  int32_t difference_rate;
  DateTimeRec synchronized_time;
} FarsyncAsyncLuInfoRec;
PERNIX_SIZE(FarsyncAsyncLuInfoRec, 84);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, lun, 0);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, pair_status, 4);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, pair_attr, 8);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, ctg_num, 12);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, lu_capacity, 16);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, remote_lu, 20);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, remote_serial, 24);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, member_valid, 44);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, synchronized_rate, 48);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, difference_capacity, 52);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, difference_rate, 56);
PERNIX_OFFSET(FarsyncAsyncLuInfoRec, synchronized_time, 60);

typedef struct KXApiTimeRec {
  int32_t hour;
  int32_t minute;
  int32_t second;
} KXApiTimeRec;
PERNIX_SIZE(KXApiTimeRec, 12);
PERNIX_OFFSET(KXApiTimeRec, hour, 0);
PERNIX_OFFSET(KXApiTimeRec, minute, 4);
PERNIX_OFFSET(KXApiTimeRec, second, 8);

/* A consistency group as one controller sees it. */
typedef struct FarsyncAsyncCTGCTLInfoRec {
  int32_t ctg_valid;
  KXApiTimeRec lapsed_time;
  int32_t remains_difference;
  int32_t rate_status;
  int32_t transfer_rate;
  int32_t prediction_status;
  KXApiTimeRec prediction_time;
} FarsyncAsyncCTGCTLInfoRec;
PERNIX_SIZE(FarsyncAsyncCTGCTLInfoRec, 44);
PERNIX_OFFSET(FarsyncAsyncCTGCTLInfoRec, ctg_valid, 0);
PERNIX_OFFSET(FarsyncAsyncCTGCTLInfoRec, lapsed_time, 4);
PERNIX_OFFSET(FarsyncAsyncCTGCTLInfoRec, remains_difference, 16);
PERNIX_OFFSET(FarsyncAsyncCTGCTLInfoRec, rate_status, 20);
PERNIX_OFFSET(FarsyncAsyncCTGCTLInfoRec, transfer_rate, 24);
PERNIX_OFFSET(FarsyncAsyncCTGCTLInfoRec, prediction_status, 28);
PERNIX_OFFSET(FarsyncAsyncCTGCTLInfoRec, prediction_time, 32);

typedef struct FarsyncAsyncCTGInfoRec {
  FarsyncAsyncCTGCTLInfoRec ctl[2];
} FarsyncAsyncCTGInfoRec;
PERNIX_SIZE(FarsyncAsyncCTGInfoRec, 88);
PERNIX_OFFSET(FarsyncAsyncCTGInfoRec, ctl, 0);

enum { PERNIX_CONSISTENCY_GROUPS = 16 };

typedef struct FarsyncAsyncPairInformationRec {
  int32_t option;
  int32_t pair_count;
  FarsyncAsyncLuInfoRec lu[4096];
  FarsyncAsyncCTGInfoRec ctg[PERNIX_CONSISTENCY_GROUPS];
} FarsyncAsyncPairInformationRec;
PERNIX_SIZE(FarsyncAsyncPairInformationRec, 345480);
PERNIX_OFFSET(FarsyncAsyncPairInformationRec, option, 0);
PERNIX_OFFSET(FarsyncAsyncPairInformationRec, pair_count, 4);
PERNIX_OFFSET(FarsyncAsyncPairInformationRec, lu, 8);
PERNIX_OFFSET(FarsyncAsyncPairInformationRec, ctg, 344072);

typedef struct CouplingLURec {
  int32_t primary_stat;
  int32_t second_stat;
  int32_t primary_lu;
  int32_t second_lu;
  int32_t primary_switch_stat;
  int32_t second_switch_stat;
  int32_t mirror_no;
} CouplingLURec;
PERNIX_SIZE(CouplingLURec, 28);
PERNIX_OFFSET(CouplingLURec, primary_stat, 0);
PERNIX_OFFSET(CouplingLURec, second_stat, 4);
PERNIX_OFFSET(CouplingLURec, primary_lu, 8);
PERNIX_OFFSET(CouplingLURec, second_lu, 12);
PERNIX_OFFSET(CouplingLURec, primary_switch_stat, 16);
PERNIX_OFFSET(CouplingLURec, second_switch_stat, 20);
PERNIX_OFFSET(CouplingLURec, mirror_no, 24);

typedef struct CouplingInfoRec {
  int32_t volk_lite;
  int32_t coupling_num;
  CouplingLURec coupling[4096];
} CouplingInfoRec;
PERNIX_SIZE(CouplingInfoRec, 114696);
PERNIX_OFFSET(CouplingInfoRec, volk_lite, 0);
PERNIX_OFFSET(CouplingInfoRec, coupling_num, 4);
PERNIX_OFFSET(CouplingInfoRec, coupling, 8);

typedef struct FarsyncAsyncOptionRec {
  int32_t option;
  int32_t support_index;
  int32_t valid_index;
  int32_t ctrl_flag;
  int32_t set_index;
  int32_t cycle_time;
} FarsyncAsyncOptionRec;
PERNIX_SIZE(FarsyncAsyncOptionRec, 24);
PERNIX_OFFSET(FarsyncAsyncOptionRec, option, 0);
PERNIX_OFFSET(FarsyncAsyncOptionRec, support_index, 4);
PERNIX_OFFSET(FarsyncAsyncOptionRec, valid_index, 8);
PERNIX_OFFSET(FarsyncAsyncOptionRec, ctrl_flag, 12);
PERNIX_OFFSET(FarsyncAsyncOptionRec, set_index, 16);
PERNIX_OFFSET(FarsyncAsyncOptionRec, cycle_time, 20);

typedef struct CmdDevInfoRec {
  int32_t cmd_valid;
  int32_t set_valid;
  int32_t cmd_lu;
  int32_t rm_security;
} CmdDevInfoRec;
PERNIX_SIZE(CmdDevInfoRec, 16);
PERNIX_OFFSET(CmdDevInfoRec, cmd_valid, 0);
PERNIX_OFFSET(CmdDevInfoRec, set_valid, 4);
PERNIX_OFFSET(CmdDevInfoRec, cmd_lu, 8);
PERNIX_OFFSET(CmdDevInfoRec, rm_security, 12);

/* Command devices.  sequence_no takes at most four characters from Java; the
 * bytes behind them up to cmd_count are reserved. */
typedef struct CommandDeviceRec {
  int32_t volk_lite;
  int32_t mode;
  int32_t valid[2];
  int32_t lu[2];
  int32_t security[2];
  char sequence_no[8];
  int32_t cmd_count;
  CmdDevInfoRec cmddev[2];
} CommandDeviceRec;
PERNIX_SIZE(CommandDeviceRec, 76);
PERNIX_OFFSET(CommandDeviceRec, volk_lite, 0);
PERNIX_OFFSET(CommandDeviceRec, mode, 4);
PERNIX_OFFSET(CommandDeviceRec, valid, 8);
PERNIX_OFFSET(CommandDeviceRec, lu, 16);
PERNIX_OFFSET(CommandDeviceRec, security, 24);
PERNIX_OFFSET(CommandDeviceRec, sequence_no, 32);
PERNIX_OFFSET(CommandDeviceRec, cmd_count, 40);
PERNIX_OFFSET(CommandDeviceRec, cmddev, 44);

typedef struct DMLUDetailRec {
  int32_t dmlu_valid;
  int32_t set_valid;
  int32_t dmlu_lu;
} DMLUDetailRec;
PERNIX_SIZE(DMLUDetailRec, 12);
PERNIX_OFFSET(DMLUDetailRec, dmlu_valid, 0);
PERNIX_OFFSET(DMLUDetailRec, set_valid, 4);
PERNIX_OFFSET(DMLUDetailRec, dmlu_lu, 8);

/* Differential-management LUs. */
typedef struct DMLUInformationRec {
  int32_t mode;
  int32_t dmlu_count;
  DMLUDetailRec dmlu[2];
} DMLUInformationRec;
PERNIX_SIZE(DMLUInformationRec, 32);
PERNIX_OFFSET(DMLUInformationRec, mode, 0);
PERNIX_OFFSET(DMLUInformationRec, dmlu_count, 4);
PERNIX_OFFSET(DMLUInformationRec, dmlu, 8);

typedef struct RemoteDeviceInformationRec {
  int32_t valid;
  char equipment_id[5];
  char serial[9];
  uint8_t reserved[2];
} RemoteDeviceInformationRec;
PERNIX_SIZE(RemoteDeviceInformationRec, 20);
PERNIX_OFFSET(RemoteDeviceInformationRec, valid, 0);
PERNIX_OFFSET(RemoteDeviceInformationRec, equipment_id, 4);
PERNIX_OFFSET(RemoteDeviceInformationRec, serial, 9);
PERNIX_OFFSET(RemoteDeviceInformationRec, reserved, 18);

/* ---- volume migration ---- */

/* One flag byte per LU number. */
typedef struct LuMigrationReserveLURec {
  uint8_t reserve_lu[4096];
} LuMigrationReserveLURec;
PERNIX_SIZE(LuMigrationReserveLURec, 4096);
PERNIX_OFFSET(LuMigrationReserveLURec, reserve_lu, 0);

typedef struct LuMigrationRequestPairInfoRec {
  int32_t pvol_lun;
  int32_t svol_lun;
  int32_t copying_pace;
} LuMigrationRequestPairInfoRec;
PERNIX_SIZE(LuMigrationRequestPairInfoRec, 12);
PERNIX_OFFSET(LuMigrationRequestPairInfoRec, pvol_lun, 0);
PERNIX_OFFSET(LuMigrationRequestPairInfoRec, svol_lun, 4);
PERNIX_OFFSET(LuMigrationRequestPairInfoRec, copying_pace, 8);

enum { PERNIX_MIGRATION_PAIRS = 2047 };

typedef struct RequestLuMigrationRec {
  int32_t request_pair_count;
  int32_t owner_id;
  LuMigrationRequestPairInfoRec lu[PERNIX_MIGRATION_PAIRS];
} RequestLuMigrationRec;
PERNIX_SIZE(RequestLuMigrationRec, 24572);
PERNIX_OFFSET(RequestLuMigrationRec, request_pair_count, 0);
PERNIX_OFFSET(RequestLuMigrationRec, owner_id, 4);
PERNIX_OFFSET(RequestLuMigrationRec, lu, 8);

/* One state word per LU. */
typedef struct LuMigrationStateRec {
  int32_t lun[4096];
} LuMigrationStateRec;
PERNIX_SIZE(LuMigrationStateRec, 16384);
PERNIX_OFFSET(LuMigrationStateRec, lun, 0);

typedef struct LuMigrationReserveLUInfoRec {
  int32_t lun;
  int32_t lu_state;
} LuMigrationReserveLUInfoRec;
PERNIX_SIZE(LuMigrationReserveLUInfoRec, 8);
PERNIX_OFFSET(LuMigrationReserveLUInfoRec, lun, 0);
PERNIX_OFFSET(LuMigrationReserveLUInfoRec, lu_state, 4);

typedef struct LuMigrationPairInfoRec {
  int32_t pvol_lun;
  int32_t pvol_rg_num;
  int32_t svol_lun;
  int32_t svol_rg_num;
  int32_t copying_pace;
  int32_t owner_id;
  int32_t migration_state;
  int32_t percent;
  int32_t migration_error;
} LuMigrationPairInfoRec;
PERNIX_SIZE(LuMigrationPairInfoRec, 36);
PERNIX_OFFSET(LuMigrationPairInfoRec, pvol_lun, 0);
PERNIX_OFFSET(LuMigrationPairInfoRec, pvol_rg_num, 4);
PERNIX_OFFSET(LuMigrationPairInfoRec, svol_lun, 8);
PERNIX_OFFSET(LuMigrationPairInfoRec, svol_rg_num, 12);
PERNIX_OFFSET(LuMigrationPairInfoRec, copying_pace, 16);
PERNIX_OFFSET(LuMigrationPairInfoRec, owner_id, 20);
PERNIX_OFFSET(LuMigrationPairInfoRec, migration_state, 24);
PERNIX_OFFSET(LuMigrationPairInfoRec, percent, 28);
PERNIX_OFFSET(LuMigrationPairInfoRec, migration_error, 32);

/* Reserved LUs and migration pairs: every slot, whatever the counts say. */
typedef struct LuMigrationInformationRec {
  int32_t option;
  int32_t reserve_lu_count;
  int32_t pair_lu_count;
  LuMigrationReserveLUInfoRec reserve_lu[PERNIX_MIGRATION_PAIRS];
  LuMigrationPairInfoRec pair_lu[PERNIX_MIGRATION_PAIRS];
} LuMigrationInformationRec;
PERNIX_SIZE(LuMigrationInformationRec, 90080);
PERNIX_OFFSET(LuMigrationInformationRec, option, 0);
PERNIX_OFFSET(LuMigrationInformationRec, reserve_lu_count, 4);
PERNIX_OFFSET(LuMigrationInformationRec, pair_lu_count, 8);
PERNIX_OFFSET(LuMigrationInformationRec, reserve_lu, 12);
PERNIX_OFFSET(LuMigrationInformationRec, pair_lu, 16388);

#pragma pack(pop)

PERNIX_BEGIN_DECLS

/* copy pairs, command devices, DMLUs and the remote array */
int KX_GetPairInformation(const char* unit, const KXSessionInfoRec* session, PairInfoRec* info);
int KX_GetMirrexInformation(const char* unit, MirrexInformationRec* info);
int KX_SplitMirrexPair(const char* unit, int value);
int KX_GetFarsyncPairInformation(const char* unit, const KXSessionInfoRec* session,
                                 FarsyncPairInformationRec* info);
int KX_GetFarsyncAsyncPairInformation(const char* unit, const KXSessionInfoRec* session,
                                      FarsyncAsyncPairInformationRec* info);
int KX_GetFarsyncAsyncOption(const char* unit, const KXSessionInfoRec* session,
                             FarsyncAsyncOptionRec* option);
int KX_SetFarsyncAsyncOption(const char* unit, const KXSessionInfoRec* session,
                             const FarsyncAsyncOptionRec* option);
int KX_GetCommandDevice(const char* unit, const KXSessionInfoRec* session, CommandDeviceRec* dev);
int KX_SetCommandDevice(const char* unit, const KXSessionInfoRec* session,
                        const CommandDeviceRec* dev);
int KX_GetDMLU(const char* unit, const KXSessionInfoRec* session, DMLUInformationRec* dmlu);
int KX_SetDMLU(const char* unit, const KXSessionInfoRec* session, const DMLUInformationRec* dmlu);
int KX_GetCouplingInfo(const char* unit, const KXSessionInfoRec* session, CouplingInfoRec* info);
int KX_GetRemoteDeviceInformation(const char* unit, const KXSessionInfoRec* session,
                                  RemoteDeviceInformationRec* info);
int KX_SetRemoteDeviceInformation(const char* unit, const KXSessionInfoRec* session,
                                  const RemoteDeviceInformationRec* info);
int KX_SetSvolDisableMode(const char* unit, const KXSessionInfoRec* session, int a, int b);

/* volume migration */
int KX_AddLuMigrationReserveLU(const char* unit, const KXSessionInfoRec* session,
                               const LuMigrationReserveLURec* lus);
int KX_DeleteLuMigrationReserveLU(const char* unit, const KXSessionInfoRec* session,
                                  const LuMigrationReserveLURec* lus);
int KX_StartLuMigration(const char* unit, const KXSessionInfoRec* session,
                        const RequestLuMigrationRec* request);
int KX_CancelLuMigration(const char* unit, const KXSessionInfoRec* session,
                         const RequestLuMigrationRec* request);
int KX_SplitLuMigration(const char* unit, const KXSessionInfoRec* session,
                        const RequestLuMigrationRec* request);
int KX_SplitLuMigrationFreeOwner(const char* unit, const KXSessionInfoRec* session,
                                 const RequestLuMigrationRec* request);
int KX_ChangeCopyPace(const char* unit, const KXSessionInfoRec* session,
                      const RequestLuMigrationRec* request);
int KX_GetLuMigrationState(const char* unit, const KXSessionInfoRec* session,
                           LuMigrationStateRec* state);
int KX_GetLuMigrationInformation(const char* unit, const KXSessionInfoRec* session,
                                 LuMigrationInformationRec* info);

PERNIX_END_DECLS

#endif
