/* Host access: host groups and LU mapping, Fibre Channel ports, WWN security,
 * target IDs, iSCSI and LU guard. */
#ifndef PERNIX_HOST_H
#define PERNIX_HOST_H

#include "pernix_common.h"
#include "session.h"

/* ==== host groups and LU mapping ==== */

#pragma pack(push, 1)

/* Every host-group table is nested controller, port, host group. */
enum {
  PERNIX_HG_CONTROLLERS = 2,
  PERNIX_HG_PORTS = 4,         /* per controller */
  PERNIX_HG_NAMES = 128,       /* host groups per port in the name and selection tables */
  PERNIX_HG_ENTRIES = 255,     /* host groups per port in the option and mapping tables */
  PERNIX_HG_MAPPED_LUS = 256,  /* host LU numbers of one host group */
  PERNIX_MAPPING_GUARD_LUS = 4096
};

/* ---- host-group names */

typedef struct HGInfoRec {
  uint8_t valid;
  char hgname[17];
} HGInfoRec;
PERNIX_SIZE(HGInfoRec, 18);
PERNIX_OFFSET(HGInfoRec, valid, 0);
PERNIX_OFFSET(HGInfoRec, hgname, 1);

typedef struct HGPortInfoRec {
  uint8_t security;
  HGInfoRec hg[PERNIX_HG_NAMES];
} HGPortInfoRec;
PERNIX_SIZE(HGPortInfoRec, 2305);
PERNIX_OFFSET(HGPortInfoRec, security, 0);
PERNIX_OFFSET(HGPortInfoRec, hg, 1);

typedef struct HGCtlInfoRec {
  HGPortInfoRec port[PERNIX_HG_PORTS];
} HGCtlInfoRec;
PERNIX_SIZE(HGCtlInfoRec, 9220);
PERNIX_OFFSET(HGCtlInfoRec, port, 0);

typedef struct HGListRec {
  uint8_t lun_manage;
  HGCtlInfoRec ctl[PERNIX_HG_CONTROLLERS];
} HGListRec;
PERNIX_SIZE(HGListRec, 18441);
PERNIX_OFFSET(HGListRec, lun_manage, 0);
PERNIX_OFFSET(HGListRec, ctl, 1);

/* The name of a host group being made or renamed. */
typedef struct HGConfigRec {
  char hgname[17];
} HGConfigRec;
PERNIX_SIZE(HGConfigRec, 17);
PERNIX_OFFSET(HGConfigRec, hgname, 0);

/* ---- host groups to delete or reset: one byte per host group */

typedef struct DeleteHGPortListRec {
  uint8_t hg[PERNIX_HG_NAMES];
} DeleteHGPortListRec;
PERNIX_SIZE(DeleteHGPortListRec, 128);
PERNIX_OFFSET(DeleteHGPortListRec, hg, 0);

typedef struct DeleteHGCtlListRec {
  DeleteHGPortListRec port[PERNIX_HG_PORTS];
} DeleteHGCtlListRec;
PERNIX_SIZE(DeleteHGCtlListRec, 512);
PERNIX_OFFSET(DeleteHGCtlListRec, port, 0);

typedef struct DeleteHGListRec {
  DeleteHGCtlListRec ctl[PERNIX_HG_CONTROLLERS];
} DeleteHGListRec;
PERNIX_SIZE(DeleteHGListRec, 1024);
PERNIX_OFFSET(DeleteHGListRec, ctl, 0);

typedef struct InitHGPortListRec {
  uint8_t hg[PERNIX_HG_NAMES];
} InitHGPortListRec;
PERNIX_SIZE(InitHGPortListRec, 128);
PERNIX_OFFSET(InitHGPortListRec, hg, 0);

typedef struct InitHGCtlListRec {
  InitHGPortListRec port[PERNIX_HG_PORTS];
} InitHGCtlListRec;
PERNIX_SIZE(InitHGCtlListRec, 512);
PERNIX_OFFSET(InitHGCtlListRec, port, 0);

typedef struct InitHGListRec {
  InitHGCtlListRec ctl[PERNIX_HG_CONTROLLERS];
} InitHGListRec;
PERNIX_SIZE(InitHGListRec, 1024);
PERNIX_OFFSET(InitHGListRec, ctl, 0);

/* ---- host-connection options */

/* Which option bits a unit supports, or which of them are being set. */
typedef struct HGOptionValidIndexRec {
  int32_t option_valid_index;
  int32_t option2_valid_index[2];
  int32_t option3_valid_index;
} HGOptionValidIndexRec;
PERNIX_SIZE(HGOptionValidIndexRec, 16);
PERNIX_OFFSET(HGOptionValidIndexRec, option_valid_index, 0);
PERNIX_OFFSET(HGOptionValidIndexRec, option2_valid_index, 4);
PERNIX_OFFSET(HGOptionValidIndexRec, option3_valid_index, 12);

typedef struct HGOptionInfoRec {
  int32_t option;
  int32_t option2[2];
  int32_t option3;
  int32_t platform_id;
  int32_t alternate_path_id;
  int32_t failover_id;
  int32_t special_mode_id;
} HGOptionInfoRec;
PERNIX_SIZE(HGOptionInfoRec, 32);
PERNIX_OFFSET(HGOptionInfoRec, option, 0);
PERNIX_OFFSET(HGOptionInfoRec, option2, 4);
PERNIX_OFFSET(HGOptionInfoRec, option3, 12);
PERNIX_OFFSET(HGOptionInfoRec, platform_id, 16);
PERNIX_OFFSET(HGOptionInfoRec, alternate_path_id, 20);
PERNIX_OFFSET(HGOptionInfoRec, failover_id, 24);
PERNIX_OFFSET(HGOptionInfoRec, special_mode_id, 28);

typedef struct HGOptionPortInfoRec {
  uint8_t security;
  uint8_t pad[3];
  int32_t hg_tg_max_count;
  HGOptionInfoRec hg[PERNIX_HG_ENTRIES];
} HGOptionPortInfoRec;
PERNIX_SIZE(HGOptionPortInfoRec, 8168);
PERNIX_OFFSET(HGOptionPortInfoRec, security, 0);
PERNIX_OFFSET(HGOptionPortInfoRec, pad, 1);
PERNIX_OFFSET(HGOptionPortInfoRec, hg_tg_max_count, 4);
PERNIX_OFFSET(HGOptionPortInfoRec, hg, 8);

typedef struct HGOptionCtlInfoRec {
  HGOptionPortInfoRec port[PERNIX_HG_PORTS];
} HGOptionCtlInfoRec;
PERNIX_SIZE(HGOptionCtlInfoRec, 32672);
PERNIX_OFFSET(HGOptionCtlInfoRec, port, 0);

typedef struct HGOptionRec {
  HGOptionValidIndexRec support_index;
  HGOptionValidIndexRec valid_index;
  int32_t HostGroupValid;
  HGOptionCtlInfoRec ctl[PERNIX_HG_CONTROLLERS];
} HGOptionRec;
PERNIX_SIZE(HGOptionRec, 65380);
PERNIX_OFFSET(HGOptionRec, support_index, 0);
PERNIX_OFFSET(HGOptionRec, valid_index, 16);
PERNIX_OFFSET(HGOptionRec, HostGroupValid, 32);
PERNIX_OFFSET(HGOptionRec, ctl, 36);

/* ---- LU mapping and mapping guard */

/* Internal LU number of each host LU number of one host group. */
typedef struct LuMappingHGInfoRec {
  int32_t lu[PERNIX_HG_MAPPED_LUS];
} LuMappingHGInfoRec;
PERNIX_SIZE(LuMappingHGInfoRec, 1024);
PERNIX_OFFSET(LuMappingHGInfoRec, lu, 0);

typedef struct LuMappingPortInfoRec {
  uint8_t security;
  uint8_t pad[3];
  int32_t hg_tg_max_count;
  LuMappingHGInfoRec hg[PERNIX_HG_ENTRIES];
} LuMappingPortInfoRec;
PERNIX_SIZE(LuMappingPortInfoRec, 261128);
PERNIX_OFFSET(LuMappingPortInfoRec, security, 0);
PERNIX_OFFSET(LuMappingPortInfoRec, pad, 1);
PERNIX_OFFSET(LuMappingPortInfoRec, hg_tg_max_count, 4);
PERNIX_OFFSET(LuMappingPortInfoRec, hg, 8);

typedef struct LuMappingCtlInfoRec {
  LuMappingPortInfoRec port[PERNIX_HG_PORTS];
} LuMappingCtlInfoRec;
PERNIX_SIZE(LuMappingCtlInfoRec, 1044512);
PERNIX_OFFSET(LuMappingCtlInfoRec, port, 0);

typedef struct LuMappingRec {
  int32_t HostGroupValid;
  int32_t ctrl_flag;
  int32_t mapping_mode;
  LuMappingCtlInfoRec ctl[PERNIX_HG_CONTROLLERS];
} LuMappingRec;
PERNIX_SIZE(LuMappingRec, 2089036);
PERNIX_OFFSET(LuMappingRec, HostGroupValid, 0);
PERNIX_OFFSET(LuMappingRec, ctrl_flag, 4);
PERNIX_OFFSET(LuMappingRec, mapping_mode, 8);
PERNIX_OFFSET(LuMappingRec, ctl, 12);

typedef struct MappingGuardListRec {
  uint8_t lumap_guard[PERNIX_MAPPING_GUARD_LUS];
} MappingGuardListRec;
PERNIX_SIZE(MappingGuardListRec, 4096);
PERNIX_OFFSET(MappingGuardListRec, lumap_guard, 0);

/* ---- host-group parameter tables (read only) */

enum {
  PERNIX_HG_PARAMETER_IDS = 20,    /* platform, alternate-path and fail-over entries */
  PERNIX_HG_SPECIAL_MODES = 30
};

typedef struct PlatFormIDRec {
  int32_t platform_id;
  char platform_name[31];
  uint8_t pad;
} PlatFormIDRec;
PERNIX_SIZE(PlatFormIDRec, 36);
PERNIX_OFFSET(PlatFormIDRec, platform_id, 0);
PERNIX_OFFSET(PlatFormIDRec, platform_name, 4);
PERNIX_OFFSET(PlatFormIDRec, pad, 35);

typedef struct AlternatePathIDRec {
  int32_t alternate_path_id;
  char alternate_path_name[31];
  uint8_t pad;
} AlternatePathIDRec;
PERNIX_SIZE(AlternatePathIDRec, 36);
PERNIX_OFFSET(AlternatePathIDRec, alternate_path_id, 0);
PERNIX_OFFSET(AlternatePathIDRec, alternate_path_name, 4);
PERNIX_OFFSET(AlternatePathIDRec, pad, 35);

typedef struct FailOverIDRec {
  int32_t failover_id;
  char failover_name[31];
  uint8_t pad;
} FailOverIDRec;
PERNIX_SIZE(FailOverIDRec, 36);
PERNIX_OFFSET(FailOverIDRec, failover_id, 0);
PERNIX_OFFSET(FailOverIDRec, failover_name, 4);
PERNIX_OFFSET(FailOverIDRec, pad, 35);

typedef struct SpecialModeIDRec {
  int32_t specialmode_id;
  char specialmode_name[121];
  uint8_t pad[3];
} SpecialModeIDRec;
PERNIX_SIZE(SpecialModeIDRec, 128);
PERNIX_OFFSET(SpecialModeIDRec, specialmode_id, 0);
PERNIX_OFFSET(SpecialModeIDRec, specialmode_name, 4);
PERNIX_OFFSET(SpecialModeIDRec, pad, 125);

typedef struct HGParameterIDRec {
  int32_t plat_id_count;
  PlatFormIDRec platform[PERNIX_HG_PARAMETER_IDS];
  int32_t altpath_id_count;
  AlternatePathIDRec alternatepath[PERNIX_HG_PARAMETER_IDS];
  int32_t fail_id_count;
  FailOverIDRec failover[PERNIX_HG_PARAMETER_IDS];
  int32_t special_id_count;
  SpecialModeIDRec specialmode[PERNIX_HG_SPECIAL_MODES];
} HGParameterIDRec;
PERNIX_SIZE(HGParameterIDRec, 6016);
PERNIX_OFFSET(HGParameterIDRec, plat_id_count, 0);
PERNIX_OFFSET(HGParameterIDRec, platform, 4);
PERNIX_OFFSET(HGParameterIDRec, altpath_id_count, 724);
PERNIX_OFFSET(HGParameterIDRec, alternatepath, 728);
PERNIX_OFFSET(HGParameterIDRec, fail_id_count, 1448);
PERNIX_OFFSET(HGParameterIDRec, failover, 1452);
PERNIX_OFFSET(HGParameterIDRec, special_id_count, 2172);
PERNIX_OFFSET(HGParameterIDRec, specialmode, 2176);

/* The options a fail-over or special mode sets. */
typedef struct FailoverInfoRec {
  int32_t failover_id;
  HGOptionInfoRec hgoptinfo;
} FailoverInfoRec;
PERNIX_SIZE(FailoverInfoRec, 36);
PERNIX_OFFSET(FailoverInfoRec, failover_id, 0);
PERNIX_OFFSET(FailoverInfoRec, hgoptinfo, 4);

typedef struct AlternatePathInfoRec {
  int32_t alternate_path_id;
  int32_t failover_count;
  FailoverInfoRec failinfo[PERNIX_HG_PARAMETER_IDS];
} AlternatePathInfoRec;
PERNIX_SIZE(AlternatePathInfoRec, 728);
PERNIX_OFFSET(AlternatePathInfoRec, alternate_path_id, 0);
PERNIX_OFFSET(AlternatePathInfoRec, failover_count, 4);
PERNIX_OFFSET(AlternatePathInfoRec, failinfo, 8);

typedef struct PlatformInfoRec {
  int32_t platform_id;
  int32_t alternate_path_count;
  AlternatePathInfoRec altpathinfo[PERNIX_HG_PARAMETER_IDS];
} PlatformInfoRec;
PERNIX_SIZE(PlatformInfoRec, 14568);
PERNIX_OFFSET(PlatformInfoRec, platform_id, 0);
PERNIX_OFFSET(PlatformInfoRec, alternate_path_count, 4);
PERNIX_OFFSET(PlatformInfoRec, altpathinfo, 8);

typedef struct SpecialmodeInfoRec {
  int32_t specialmode_id;
  HGOptionInfoRec hgoptinfo;
} SpecialmodeInfoRec;
PERNIX_SIZE(SpecialmodeInfoRec, 36);
PERNIX_OFFSET(SpecialmodeInfoRec, specialmode_id, 0);
PERNIX_OFFSET(SpecialmodeInfoRec, hgoptinfo, 4);

typedef struct HGParameterListRec {
  int32_t platform_count;
  PlatformInfoRec platinfo[PERNIX_HG_PARAMETER_IDS];
  int32_t special_mode_count;
  SpecialmodeInfoRec specialinfo[PERNIX_HG_SPECIAL_MODES];
} HGParameterListRec;
PERNIX_SIZE(HGParameterListRec, 292448);
PERNIX_OFFSET(HGParameterListRec, platform_count, 0);
PERNIX_OFFSET(HGParameterListRec, platinfo, 4);
PERNIX_OFFSET(HGParameterListRec, special_mode_count, 291364);
PERNIX_OFFSET(HGParameterListRec, specialinfo, 291368);

#pragma pack(pop)

PERNIX_BEGIN_DECLS

/* a, b, c (and d) select controller, port and host group (and LU); they are
 * passed as the caller gave them. */
int KX_GetHGList(const char* unit, const KXSessionInfoRec* session, HGListRec* list);
int KX_CreateHG(const char* unit, const KXSessionInfoRec* session, int a, int b, int c,
                const HGConfigRec* config);
int KX_ChangeHG(const char* unit, const KXSessionInfoRec* session, int a, int b, int c,
                const HGConfigRec* config);
int KX_DeleteHGList(const char* unit, const KXSessionInfoRec* session, const DeleteHGListRec* list);
int KX_InitHGList(const char* unit, const KXSessionInfoRec* session, const InitHGListRec* list);
int KX_GetHGOption(const char* unit, const KXSessionInfoRec* session, int a, int b, int c,
                   HGOptionInfoRec* info);
int KX_SetHGOption(const char* unit, const KXSessionInfoRec* session, int a, int b, int c,
                   const HGOptionInfoRec* info);
int KX_GetHGOptionAll(const char* unit, const KXSessionInfoRec* session, HGOptionRec* option);
int KX_SetHGOptionAll(const char* unit, const KXSessionInfoRec* session, const HGOptionRec* option);
int KX_GetHGParameterID(const char* unit, const KXSessionInfoRec* session, int a,
                        HGParameterIDRec* ids);
int KX_GetHGParameterList(const char* unit, const KXSessionInfoRec* session,
                          HGParameterListRec* list);
int KX_GetLuMappingListAll(const char* unit, const KXSessionInfoRec* session, LuMappingRec* map);
int KX_SetLuMappingListAll(const char* unit, const KXSessionInfoRec* session,
                           const LuMappingRec* map);
int KX_GetLuMappingList(const char* unit, const KXSessionInfoRec* session, int a, int b, int c,
                        int* count, LuMappingHGInfoRec* lu);
int KX_SetLuMappingList(const char* unit, const KXSessionInfoRec* session, int a, int b, int c,
                        int d, const LuMappingHGInfoRec* lu);
int KX_ChangeMappingMode(const char* unit, const KXSessionInfoRec* session, int mode);
int KX_GetMappingGuardList(const char* unit, const KXSessionInfoRec* session,
                           MappingGuardListRec* guard);
int KX_SetMappingGuardList(const char* unit, const KXSessionInfoRec* session,
                           const MappingGuardListRec* guard);

PERNIX_END_DECLS

/* ==== end of host groups and LU mapping ==== */

/* ==== Fibre Channel ports, WWN security and target IDs ==== */

#pragma pack(push, 1)

/* One host world wide name allowed on a port, with the LUs it may reach. */
typedef struct FibreInformationPermissionRec {
  char node_name[17];
  char port_name[17];
  char n_port_id[7];
  uint8_t lun_security_bitmap[256]; /* 2048 bits, one per LU */
} FibreInformationPermissionRec;
PERNIX_SIZE(FibreInformationPermissionRec, 297);
PERNIX_OFFSET(FibreInformationPermissionRec, node_name, 0);
PERNIX_OFFSET(FibreInformationPermissionRec, port_name, 17);
PERNIX_OFFSET(FibreInformationPermissionRec, n_port_id, 34);
PERNIX_OFFSET(FibreInformationPermissionRec, lun_security_bitmap, 41);

#pragma pack(pop)

/* ==== end of Fibre Channel ports, WWN security and target IDs ==== */

/* ==== iSCSI ports, targets, initiators and CHAP ==== */

/* ==== end of iSCSI ports, targets, initiators and CHAP ==== */

/* ==== LU guard and retention ==== */

/* ==== end of LU guard and retention ==== */

#endif
