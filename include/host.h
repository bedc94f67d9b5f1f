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

/* One connector of a Fibre Channel port. */
typedef struct FibreInformationConnectorRec {
  int32_t topology_ref;
} FibreInformationConnectorRec;
PERNIX_SIZE(FibreInformationConnectorRec, 4);
PERNIX_OFFSET(FibreInformationConnectorRec, topology_ref, 0);

/* One Fibre Channel port: names, addresses and speeds. */
typedef struct FibreInformationPortRec {
  char node_name[17];
  char port_name[17];
  char n_port_id[7];
  char get_address[7];
  uint8_t frame_size;
  uint8_t if_board;
  uint8_t support_speed;
  uint8_t set_speed;
  uint8_t refer_speed;
  uint8_t reserved[3];
  int32_t connect_valid;
  FibreInformationConnectorRec connect[2];
} FibreInformationPortRec;
PERNIX_SIZE(FibreInformationPortRec, 68);
PERNIX_OFFSET(FibreInformationPortRec, node_name, 0);
PERNIX_OFFSET(FibreInformationPortRec, port_name, 17);
PERNIX_OFFSET(FibreInformationPortRec, n_port_id, 34);
PERNIX_OFFSET(FibreInformationPortRec, get_address, 41);
PERNIX_OFFSET(FibreInformationPortRec, frame_size, 48);
PERNIX_OFFSET(FibreInformationPortRec, if_board, 49);
PERNIX_OFFSET(FibreInformationPortRec, support_speed, 50);
PERNIX_OFFSET(FibreInformationPortRec, set_speed, 51);
PERNIX_OFFSET(FibreInformationPortRec, refer_speed, 52);
PERNIX_OFFSET(FibreInformationPortRec, reserved, 53);
PERNIX_OFFSET(FibreInformationPortRec, connect_valid, 56);
PERNIX_OFFSET(FibreInformationPortRec, connect, 60);

/* Firmware levels of a port's interface chips. */
typedef struct FibreInformationSfcRec {
  char biu[9];
  char sequence[9];
  char oper_firmware[9];
  char post_firmware[9];
  char endec[9];
  char fc_ph[6];
} FibreInformationSfcRec;
PERNIX_SIZE(FibreInformationSfcRec, 51);
PERNIX_OFFSET(FibreInformationSfcRec, biu, 0);
PERNIX_OFFSET(FibreInformationSfcRec, sequence, 9);
PERNIX_OFFSET(FibreInformationSfcRec, oper_firmware, 18);
PERNIX_OFFSET(FibreInformationSfcRec, post_firmware, 27);
PERNIX_OFFSET(FibreInformationSfcRec, endec, 36);
PERNIX_OFFSET(FibreInformationSfcRec, fc_ph, 45);

/* Host world wide names a port admits, and how. */
enum { PERNIX_FC_PERMISSIONS = 128 };

/* The LUN security table of one port. */
typedef struct FibreInformationSecurityRec {
  int8_t access_guard;
  int8_t all_lun_security;
  uint8_t reserved[2];
  int32_t permission_count;
  int32_t security_chk_lv;
  FibreInformationPermissionRec permission[PERNIX_FC_PERMISSIONS];
} FibreInformationSecurityRec;
PERNIX_SIZE(FibreInformationSecurityRec, 38028);
PERNIX_OFFSET(FibreInformationSecurityRec, access_guard, 0);
PERNIX_OFFSET(FibreInformationSecurityRec, all_lun_security, 1);
PERNIX_OFFSET(FibreInformationSecurityRec, reserved, 2);
PERNIX_OFFSET(FibreInformationSecurityRec, permission_count, 4);
PERNIX_OFFSET(FibreInformationSecurityRec, security_chk_lv, 8);
PERNIX_OFFSET(FibreInformationSecurityRec, permission, 12);

/* The Fibre Channel side of one controller: four ports. */
typedef struct FibreInformationRec {
  int8_t lun_security;
  uint8_t reserved1[3];
  int32_t port_valid;
  int32_t topology[4];
  int32_t topology_ref[4];
  FibreInformationPortRec port[4];
  FibreInformationSfcRec sfc[4];
  FibreInformationSecurityRec security[4];
  char product_number[5];
  uint8_t reserved2[3];
} FibreInformationRec;
PERNIX_SIZE(FibreInformationRec, 152636);
PERNIX_OFFSET(FibreInformationRec, lun_security, 0);
PERNIX_OFFSET(FibreInformationRec, reserved1, 1);
PERNIX_OFFSET(FibreInformationRec, port_valid, 4);
PERNIX_OFFSET(FibreInformationRec, topology, 8);
PERNIX_OFFSET(FibreInformationRec, topology_ref, 24);
PERNIX_OFFSET(FibreInformationRec, port, 40);
PERNIX_OFFSET(FibreInformationRec, sfc, 312);
PERNIX_OFFSET(FibreInformationRec, security, 516);
PERNIX_OFFSET(FibreInformationRec, product_number, 152628);
PERNIX_OFFSET(FibreInformationRec, reserved2, 152633);

/* ---- the older WWN permission table (no session) */

typedef struct WWNPermInfoRec {
  char node_name[17];
  char port_name[17];
  uint8_t lun_security_bitmap[256];
} WWNPermInfoRec;
PERNIX_SIZE(WWNPermInfoRec, 290);
PERNIX_OFFSET(WWNPermInfoRec, node_name, 0);
PERNIX_OFFSET(WWNPermInfoRec, port_name, 17);
PERNIX_OFFSET(WWNPermInfoRec, lun_security_bitmap, 34);

typedef struct WWNPortInfoRec {
  int32_t lun_security;
  int32_t permission_count;
  int32_t security_chk_lv;
  WWNPermInfoRec permission[PERNIX_FC_PERMISSIONS];
} WWNPortInfoRec;
PERNIX_SIZE(WWNPortInfoRec, 37132);
PERNIX_OFFSET(WWNPortInfoRec, lun_security, 0);
PERNIX_OFFSET(WWNPortInfoRec, permission_count, 4);
PERNIX_OFFSET(WWNPortInfoRec, security_chk_lv, 8);
PERNIX_OFFSET(WWNPortInfoRec, permission, 12);

typedef struct WWNCtlInfoRec {
  WWNPortInfoRec port[4];
} WWNCtlInfoRec;
PERNIX_SIZE(WWNCtlInfoRec, 148528);
PERNIX_OFFSET(WWNCtlInfoRec, port, 0);

typedef struct WWNInformationRec {
  int32_t lun_security_opt;
  WWNCtlInfoRec ctl[2];
} WWNInformationRec;
PERNIX_SIZE(WWNInformationRec, 297060);
PERNIX_OFFSET(WWNInformationRec, lun_security_opt, 0);
PERNIX_OFFSET(WWNInformationRec, ctl, 4);

/* ---- world wide names assigned to host groups */

typedef struct WWNHostInfoRec {
  char node_name[17];
  char port_name[17];
  uint8_t hostflag;
  uint8_t reserved1;
  int32_t hg_number;
  char wname[17];
  uint8_t reserved2[3];
} WWNHostInfoRec;
PERNIX_SIZE(WWNHostInfoRec, 60);
PERNIX_OFFSET(WWNHostInfoRec, node_name, 0);
PERNIX_OFFSET(WWNHostInfoRec, port_name, 17);
PERNIX_OFFSET(WWNHostInfoRec, hostflag, 34);
PERNIX_OFFSET(WWNHostInfoRec, reserved1, 35);
PERNIX_OFFSET(WWNHostInfoRec, hg_number, 36);
PERNIX_OFFSET(WWNHostInfoRec, wname, 40);
PERNIX_OFFSET(WWNHostInfoRec, reserved2, 57);

typedef struct WWNHGPortInfoRec {
  uint8_t security;
  uint8_t reserved[3];
  int32_t wwn_count;
  WWNHostInfoRec wwn[128];
} WWNHGPortInfoRec;
PERNIX_SIZE(WWNHGPortInfoRec, 7688);
PERNIX_OFFSET(WWNHGPortInfoRec, security, 0);
PERNIX_OFFSET(WWNHGPortInfoRec, reserved, 1);
PERNIX_OFFSET(WWNHGPortInfoRec, wwn_count, 4);
PERNIX_OFFSET(WWNHGPortInfoRec, wwn, 8);

typedef struct WWNHGCtlInfoRec {
  WWNHGPortInfoRec port[4];
} WWNHGCtlInfoRec;
PERNIX_SIZE(WWNHGCtlInfoRec, 30752);
PERNIX_OFFSET(WWNHGCtlInfoRec, port, 0);

typedef struct WWNHGInformationRec {
  uint8_t lun_manage;
  uint8_t reserved[3];
  WWNHGCtlInfoRec ctl[2];
} WWNHGInformationRec;
PERNIX_SIZE(WWNHGInformationRec, 61508);
PERNIX_OFFSET(WWNHGInformationRec, lun_manage, 0);
PERNIX_OFFSET(WWNHGInformationRec, reserved, 1);
PERNIX_OFFSET(WWNHGInformationRec, ctl, 4);

/* ---- port option words */

typedef struct PortOptionValidIndexRec {
  int32_t lip_mode_valid_index;
  int32_t port_common_opt_valid_index;
} PortOptionValidIndexRec;
PERNIX_SIZE(PortOptionValidIndexRec, 8);
PERNIX_OFFSET(PortOptionValidIndexRec, lip_mode_valid_index, 0);
PERNIX_OFFSET(PortOptionValidIndexRec, port_common_opt_valid_index, 4);

typedef struct PortOptionCtlInfoRec {
  int32_t lip_mode[4];
  int32_t port_common_opt[4];
} PortOptionCtlInfoRec;
PERNIX_SIZE(PortOptionCtlInfoRec, 32);
PERNIX_OFFSET(PortOptionCtlInfoRec, lip_mode, 0);
PERNIX_OFFSET(PortOptionCtlInfoRec, port_common_opt, 16);

typedef struct PortOptionRec {
  PortOptionValidIndexRec support_index;
  PortOptionValidIndexRec valid_index;
  PortOptionCtlInfoRec ctl[2];
} PortOptionRec;
PERNIX_SIZE(PortOptionRec, 80);
PERNIX_OFFSET(PortOptionRec, support_index, 0);
PERNIX_OFFSET(PortOptionRec, valid_index, 8);
PERNIX_OFFSET(PortOptionRec, ctl, 16);

/* ---- target IDs, one record per controller (the imported WZ tables share
 * the layout) */

typedef struct TargetLunListRec {
  uint8_t lun[128];
} TargetLunListRec;
PERNIX_SIZE(TargetLunListRec, 128);
PERNIX_OFFSET(TargetLunListRec, lun, 0);

typedef struct TargetConfigRec {
  int8_t single;
  uint8_t multi[16];
  TargetLunListRec mapping[16];
} TargetConfigRec;
PERNIX_SIZE(TargetConfigRec, 2065);
PERNIX_OFFSET(TargetConfigRec, single, 0);
PERNIX_OFFSET(TargetConfigRec, multi, 1);
PERNIX_OFFSET(TargetConfigRec, mapping, 17);

typedef struct TargetIdRec {
  int32_t ctrl_flag;
  int32_t target_id_mode;
  TargetConfigRec target_config[4];
} TargetIdRec;
PERNIX_SIZE(TargetIdRec, 8268);
PERNIX_OFFSET(TargetIdRec, ctrl_flag, 0);
PERNIX_OFFSET(TargetIdRec, target_id_mode, 4);
PERNIX_OFFSET(TargetIdRec, target_config, 8);

#pragma pack(pop)

PERNIX_BEGIN_DECLS

/* The pair calls fill (or take) one record per controller. */
int KX_GetFibreInformation(const char* unit, const KXSessionInfoRec* session,
                           FibreInformationRec* ctl0, FibreInformationRec* ctl1);
int KX_SetFibreInformation(const char* unit, const KXSessionInfoRec* session,
                           const FibreInformationRec* ctl0, const FibreInformationRec* ctl1);
int KX_GetWWNInformation(const char* unit, WWNInformationRec* info);
int KX_SetWWNInformation(const char* unit, const WWNInformationRec* info);
int KX_GetWWNHGInformation(const char* unit, const KXSessionInfoRec* session,
                           WWNHGInformationRec* info);
int KX_SetWWNHGInformation(const char* unit, const KXSessionInfoRec* session,
                           const WWNHGInformationRec* info);
int KX_GetPortOption(const char* unit, const KXSessionInfoRec* session, PortOptionRec* opt);
int KX_SetPortOption(const char* unit, const KXSessionInfoRec* session, const PortOptionRec* opt);
int KX_GetTargetId(const char* unit, int a, TargetIdRec* ctl0, TargetIdRec* ctl1);
int KX_SetTargetId(const char* unit, int a, const TargetIdRec* target, int b);
int KX_TargetIdImport(const char* unit, const char* file, TargetIdRec* ctl0, TargetIdRec* ctl1);
/* The imported pair is held in the set-up wizard's records (raid.h), of the
 * same layout as TargetIdRec. */
struct WZTargetIdRec;
int KX_WZTargetIdImport(const char* unit, const char* file1, const char* file2, int a,
                        struct WZTargetIdRec* ctl0, struct WZTargetIdRec* ctl1);

PERNIX_END_DECLS

/* ==== end of Fibre Channel ports, WWN security and target IDs ==== */

/* ==== iSCSI ports, targets, initiators and CHAP ==== */

#pragma pack(push, 1)

/* Every table is held per controller (2), then per port (4). */

/* ---- port network settings */

typedef struct KXiSCSIPortPortInfoRec {
  int32_t port_valid;
  int32_t set_valid;
  char ip_address[16];
  char subnet[16];
  char gateway[16];
  int32_t port_num;
  char ether[18];
  uint8_t reserved[2];
  int32_t keep_alive_timer;
  int32_t mtu;
  int32_t set_status;
} KXiSCSIPortPortInfoRec;
PERNIX_SIZE(KXiSCSIPortPortInfoRec, 92);
PERNIX_OFFSET(KXiSCSIPortPortInfoRec, port_valid, 0);
PERNIX_OFFSET(KXiSCSIPortPortInfoRec, set_valid, 4);
PERNIX_OFFSET(KXiSCSIPortPortInfoRec, ip_address, 8);
PERNIX_OFFSET(KXiSCSIPortPortInfoRec, subnet, 24);
PERNIX_OFFSET(KXiSCSIPortPortInfoRec, gateway, 40);
PERNIX_OFFSET(KXiSCSIPortPortInfoRec, port_num, 56);
PERNIX_OFFSET(KXiSCSIPortPortInfoRec, ether, 60);
PERNIX_OFFSET(KXiSCSIPortPortInfoRec, reserved, 78);
PERNIX_OFFSET(KXiSCSIPortPortInfoRec, keep_alive_timer, 80);
PERNIX_OFFSET(KXiSCSIPortPortInfoRec, mtu, 84);
PERNIX_OFFSET(KXiSCSIPortPortInfoRec, set_status, 88);

typedef struct KXiSCSIPortCTLInfoRec {
  KXiSCSIPortPortInfoRec port[4];
} KXiSCSIPortCTLInfoRec;
PERNIX_SIZE(KXiSCSIPortCTLInfoRec, 368);
PERNIX_OFFSET(KXiSCSIPortCTLInfoRec, port, 0);

typedef struct KXiSCSIPortInformationRec {
  KXiSCSIPortCTLInfoRec ctl[2];
} KXiSCSIPortInformationRec;
PERNIX_SIZE(KXiSCSIPortInformationRec, 736);
PERNIX_OFFSET(KXiSCSIPortInformationRec, ctl, 0);

/* ---- targets; `secret` is the target's CHAP secret */

enum { PERNIX_ISCSI_TARGETS = 255 };

typedef struct KXiSCSITargetInfoRec {
  int32_t target_valid;
  char target_name[33];
  char iscsi_name[224];
  uint8_t reserved1[3];
  int32_t authmethod;
  int32_t algorithm;
  int32_t auth;
  char user_name[257];
  char secret[33];
  uint8_t reserved2[2];
} KXiSCSITargetInfoRec;
PERNIX_SIZE(KXiSCSITargetInfoRec, 568);
PERNIX_OFFSET(KXiSCSITargetInfoRec, target_valid, 0);
PERNIX_OFFSET(KXiSCSITargetInfoRec, target_name, 4);
PERNIX_OFFSET(KXiSCSITargetInfoRec, iscsi_name, 37);
PERNIX_OFFSET(KXiSCSITargetInfoRec, reserved1, 261);
PERNIX_OFFSET(KXiSCSITargetInfoRec, authmethod, 264);
PERNIX_OFFSET(KXiSCSITargetInfoRec, algorithm, 268);
PERNIX_OFFSET(KXiSCSITargetInfoRec, auth, 272);
PERNIX_OFFSET(KXiSCSITargetInfoRec, user_name, 276);
PERNIX_OFFSET(KXiSCSITargetInfoRec, secret, 533);
PERNIX_OFFSET(KXiSCSITargetInfoRec, reserved2, 566);

typedef struct KXiSCSITargetPortInfoRec {
  int32_t port_valid;
  int32_t security;
  int32_t target_max_count;
  int32_t target_count;
  KXiSCSITargetInfoRec target[PERNIX_ISCSI_TARGETS];
} KXiSCSITargetPortInfoRec;
PERNIX_SIZE(KXiSCSITargetPortInfoRec, 144856);
PERNIX_OFFSET(KXiSCSITargetPortInfoRec, port_valid, 0);
PERNIX_OFFSET(KXiSCSITargetPortInfoRec, security, 4);
PERNIX_OFFSET(KXiSCSITargetPortInfoRec, target_max_count, 8);
PERNIX_OFFSET(KXiSCSITargetPortInfoRec, target_count, 12);
PERNIX_OFFSET(KXiSCSITargetPortInfoRec, target, 16);

typedef struct KXiSCSITargetCTLInfoRec {
  KXiSCSITargetPortInfoRec port[4];
} KXiSCSITargetCTLInfoRec;
PERNIX_SIZE(KXiSCSITargetCTLInfoRec, 579424);
PERNIX_OFFSET(KXiSCSITargetCTLInfoRec, port, 0);

typedef struct KXiSCSITargetInformationAllRec {
  int32_t option;
  KXiSCSITargetCTLInfoRec ctl[2];
} KXiSCSITargetInformationAllRec;
PERNIX_SIZE(KXiSCSITargetInformationAllRec, 1158852);
PERNIX_OFFSET(KXiSCSITargetInformationAllRec, option, 0);
PERNIX_OFFSET(KXiSCSITargetInformationAllRec, ctl, 4);

/* One flag per target slot of a port. */
typedef struct DeleteiSCSITargetRec {
  int32_t delete_target[PERNIX_ISCSI_TARGETS];
} DeleteiSCSITargetRec;
PERNIX_SIZE(DeleteiSCSITargetRec, 1020);
PERNIX_OFFSET(DeleteiSCSITargetRec, delete_target, 0);

/* ---- registered initiators and the targets each may reach */

enum { PERNIX_ISCSI_INITIATORS = 256 };

typedef struct KXiSCSIInitiatorInfoRec {
  int32_t initiator_valid;
  int32_t ctrl_flag;
  char initiator_name[33];
  char iscsi_name[224];
  uint8_t target_bitmap[32];
  uint8_t reserved[3];
} KXiSCSIInitiatorInfoRec;
PERNIX_SIZE(KXiSCSIInitiatorInfoRec, 300);
PERNIX_OFFSET(KXiSCSIInitiatorInfoRec, initiator_valid, 0);
PERNIX_OFFSET(KXiSCSIInitiatorInfoRec, ctrl_flag, 4);
PERNIX_OFFSET(KXiSCSIInitiatorInfoRec, initiator_name, 8);
PERNIX_OFFSET(KXiSCSIInitiatorInfoRec, iscsi_name, 41);
PERNIX_OFFSET(KXiSCSIInitiatorInfoRec, target_bitmap, 265);
PERNIX_OFFSET(KXiSCSIInitiatorInfoRec, reserved, 297);

typedef struct KXiSCSIInitiatorPortInfoRec {
  int32_t port_valid;
  int32_t security;
  int32_t initiator_max_count;
  int32_t initiator_count;
  KXiSCSIInitiatorInfoRec initiator[PERNIX_ISCSI_INITIATORS];
} KXiSCSIInitiatorPortInfoRec;
PERNIX_SIZE(KXiSCSIInitiatorPortInfoRec, 76816);
PERNIX_OFFSET(KXiSCSIInitiatorPortInfoRec, port_valid, 0);
PERNIX_OFFSET(KXiSCSIInitiatorPortInfoRec, security, 4);
PERNIX_OFFSET(KXiSCSIInitiatorPortInfoRec, initiator_max_count, 8);
PERNIX_OFFSET(KXiSCSIInitiatorPortInfoRec, initiator_count, 12);
PERNIX_OFFSET(KXiSCSIInitiatorPortInfoRec, initiator, 16);

typedef struct KXiSCSIInitiatorCTLInfoRec {
  KXiSCSIInitiatorPortInfoRec port[4];
} KXiSCSIInitiatorCTLInfoRec;
PERNIX_SIZE(KXiSCSIInitiatorCTLInfoRec, 307264);
PERNIX_OFFSET(KXiSCSIInitiatorCTLInfoRec, port, 0);

typedef struct KXiSCSIInitiatorInformationAllRec {
  int32_t option;
  KXiSCSIInitiatorCTLInfoRec ctl[2];
} KXiSCSIInitiatorInformationAllRec;
PERNIX_SIZE(KXiSCSIInitiatorInformationAllRec, 614532);
PERNIX_OFFSET(KXiSCSIInitiatorInformationAllRec, option, 0);
PERNIX_OFFSET(KXiSCSIInitiatorInformationAllRec, ctl, 4);

/* ---- initiators logged in now (read only) */

typedef struct KXiSCSILoginInitiatorInfoRec {
  int32_t initiator_valid;
  char iscsi_name[224];
} KXiSCSILoginInitiatorInfoRec;
PERNIX_SIZE(KXiSCSILoginInitiatorInfoRec, 228);
PERNIX_OFFSET(KXiSCSILoginInitiatorInfoRec, initiator_valid, 0);
PERNIX_OFFSET(KXiSCSILoginInitiatorInfoRec, iscsi_name, 4);

typedef struct KXiSCSILoginInitiatorPortInfoRec {
  int32_t port_valid;
  int32_t initiator_max_count;
  int32_t initiator_count;
  KXiSCSILoginInitiatorInfoRec initiator[PERNIX_ISCSI_INITIATORS];
} KXiSCSILoginInitiatorPortInfoRec;
PERNIX_SIZE(KXiSCSILoginInitiatorPortInfoRec, 58380);
PERNIX_OFFSET(KXiSCSILoginInitiatorPortInfoRec, port_valid, 0);
PERNIX_OFFSET(KXiSCSILoginInitiatorPortInfoRec, initiator_max_count, 4);
PERNIX_OFFSET(KXiSCSILoginInitiatorPortInfoRec, initiator_count, 8);
PERNIX_OFFSET(KXiSCSILoginInitiatorPortInfoRec, initiator, 12);

typedef struct KXiSCSILoginInitiatorCTLInfoRec {
  KXiSCSILoginInitiatorPortInfoRec port[4];
} KXiSCSILoginInitiatorCTLInfoRec;
PERNIX_SIZE(KXiSCSILoginInitiatorCTLInfoRec, 233520);
PERNIX_OFFSET(KXiSCSILoginInitiatorCTLInfoRec, port, 0);

typedef struct KXiSCSILoginInitiatorInformationAllRec {
  KXiSCSILoginInitiatorCTLInfoRec ctl[2];
} KXiSCSILoginInitiatorInformationAllRec;
PERNIX_SIZE(KXiSCSILoginInitiatorInformationAllRec, 467040);
PERNIX_OFFSET(KXiSCSILoginInitiatorInformationAllRec, ctl, 0);

/* ---- CHAP users; `secret` is the user's CHAP secret */

enum { PERNIX_CHAP_USERS = 512 };

typedef struct KXiSCSICHAPUserInfoRec {
  int32_t user_valid;
  int32_t ctrl_flag;
  char user_name[257];
  char secret[33];
  uint8_t target_bitmap[32];
  uint8_t reserved[2];
} KXiSCSICHAPUserInfoRec;
PERNIX_SIZE(KXiSCSICHAPUserInfoRec, 332);
PERNIX_OFFSET(KXiSCSICHAPUserInfoRec, user_valid, 0);
PERNIX_OFFSET(KXiSCSICHAPUserInfoRec, ctrl_flag, 4);
PERNIX_OFFSET(KXiSCSICHAPUserInfoRec, user_name, 8);
PERNIX_OFFSET(KXiSCSICHAPUserInfoRec, secret, 265);
PERNIX_OFFSET(KXiSCSICHAPUserInfoRec, target_bitmap, 298);
PERNIX_OFFSET(KXiSCSICHAPUserInfoRec, reserved, 330);

typedef struct KXiSCSICHAPUserPortInfoRec {
  int32_t port_valid;
  int32_t security;
  int32_t user_max_count;
  int32_t user_count;
  KXiSCSICHAPUserInfoRec user[PERNIX_CHAP_USERS];
} KXiSCSICHAPUserPortInfoRec;
PERNIX_SIZE(KXiSCSICHAPUserPortInfoRec, 170000);
PERNIX_OFFSET(KXiSCSICHAPUserPortInfoRec, port_valid, 0);
PERNIX_OFFSET(KXiSCSICHAPUserPortInfoRec, security, 4);
PERNIX_OFFSET(KXiSCSICHAPUserPortInfoRec, user_max_count, 8);
PERNIX_OFFSET(KXiSCSICHAPUserPortInfoRec, user_count, 12);
PERNIX_OFFSET(KXiSCSICHAPUserPortInfoRec, user, 16);

typedef struct KXiSCSICHAPUserCTLInfoRec {
  KXiSCSICHAPUserPortInfoRec port[4];
} KXiSCSICHAPUserCTLInfoRec;
PERNIX_SIZE(KXiSCSICHAPUserCTLInfoRec, 680000);
PERNIX_OFFSET(KXiSCSICHAPUserCTLInfoRec, port, 0);

typedef struct KXiSCSICHAPUserInformationAllRec {
  int32_t option;
  KXiSCSICHAPUserCTLInfoRec ctl[2];
} KXiSCSICHAPUserInformationAllRec;
PERNIX_SIZE(KXiSCSICHAPUserInformationAllRec, 1360004);
PERNIX_OFFSET(KXiSCSICHAPUserInformationAllRec, option, 0);
PERNIX_OFFSET(KXiSCSICHAPUserInformationAllRec, ctl, 4);

/* ---- iSNS server and ping test */

typedef struct KXiSNSPortInfoRec {
  int32_t port_valid;
  int32_t set_valid;
  int32_t isns_use;
  char ip_address[16];
  int32_t port_num;
} KXiSNSPortInfoRec;
PERNIX_SIZE(KXiSNSPortInfoRec, 32);
PERNIX_OFFSET(KXiSNSPortInfoRec, port_valid, 0);
PERNIX_OFFSET(KXiSNSPortInfoRec, set_valid, 4);
PERNIX_OFFSET(KXiSNSPortInfoRec, isns_use, 8);
PERNIX_OFFSET(KXiSNSPortInfoRec, ip_address, 12);
PERNIX_OFFSET(KXiSNSPortInfoRec, port_num, 28);

typedef struct KXiSNSCTLInfoRec {
  KXiSNSPortInfoRec port[4];
} KXiSNSCTLInfoRec;
PERNIX_SIZE(KXiSNSCTLInfoRec, 128);
PERNIX_OFFSET(KXiSNSCTLInfoRec, port, 0);

typedef struct KXiSNSInformationRec {
  KXiSNSCTLInfoRec ctl[2];
} KXiSNSInformationRec;
PERNIX_SIZE(KXiSNSInformationRec, 256);
PERNIX_OFFSET(KXiSNSInformationRec, ctl, 0);

typedef struct KXiSCSIPingPortRec {
  int32_t port_valid;
  int32_t request_valid;
  char ip_address[16];
  int32_t status;
  int32_t execute_count;
  int32_t success_count;
  int32_t schedule_count;
} KXiSCSIPingPortRec;
PERNIX_SIZE(KXiSCSIPingPortRec, 40);
PERNIX_OFFSET(KXiSCSIPingPortRec, port_valid, 0);
PERNIX_OFFSET(KXiSCSIPingPortRec, request_valid, 4);
PERNIX_OFFSET(KXiSCSIPingPortRec, ip_address, 8);
PERNIX_OFFSET(KXiSCSIPingPortRec, status, 24);
PERNIX_OFFSET(KXiSCSIPingPortRec, execute_count, 28);
PERNIX_OFFSET(KXiSCSIPingPortRec, success_count, 32);
PERNIX_OFFSET(KXiSCSIPingPortRec, schedule_count, 36);

typedef struct KXiSCSIPingCTLRec {
  KXiSCSIPingPortRec port[4];
} KXiSCSIPingCTLRec;
PERNIX_SIZE(KXiSCSIPingCTLRec, 160);
PERNIX_OFFSET(KXiSCSIPingCTLRec, port, 0);

typedef struct KXiSCSIPingRec {
  KXiSCSIPingCTLRec ctl[2];
} KXiSCSIPingRec;
PERNIX_SIZE(KXiSCSIPingRec, 320);
PERNIX_OFFSET(KXiSCSIPingRec, ctl, 0);

#pragma pack(pop)

PERNIX_BEGIN_DECLS

/* The ints a, b (and c) address controller, port and target slot, in that order. */
int KX_GetiSCSIPortInformation(const char* unit, const KXSessionInfoRec* session,
                               KXiSCSIPortInformationRec* info);
int KX_SetiSCSIPortInformation(const char* unit, const KXSessionInfoRec* session,
                               const KXiSCSIPortInformationRec* info);
int KX_GetiSCSITargetInformationAll(const char* unit, const KXSessionInfoRec* session,
                                    KXiSCSITargetInformationAllRec* all);
int KX_CreateiSCSITarget(const char* unit, const KXSessionInfoRec* session, int a, int b, int c,
                         const KXiSCSITargetInfoRec* target);
int KX_ChangeiSCSITarget(const char* unit, const KXSessionInfoRec* session, int a, int b, int c,
                         const KXiSCSITargetInfoRec* target);
int KX_DeleteiSCSITarget(const char* unit, const KXSessionInfoRec* session, int a, int b,
                         const DeleteiSCSITargetRec* list);
int KX_InitiSCSITarget(const char* unit, const KXSessionInfoRec* session, int a, int b);
int KX_ChangeiSCSITargetSecurity(const char* unit, const KXSessionInfoRec* session, int a, int b,
                                 int c);
int KX_GetiSCSIInitiatorInformationAll(const char* unit, const KXSessionInfoRec* session,
                                       KXiSCSIInitiatorInformationAllRec* all);
/* Spelled so by the library. */
int KX_SetiSCSIInitiatortInformation(const char* unit, const KXSessionInfoRec* session, int a, int b,
                                     const KXiSCSIInitiatorPortInfoRec* port);
int KX_GetiSCSILoginInitiatorInformationAll(const char* unit, const KXSessionInfoRec* session,
                                            KXiSCSILoginInitiatorInformationAllRec* all);
int KX_GetiSCSICHAPUserInformationAll(const char* unit, const KXSessionInfoRec* session,
                                      KXiSCSICHAPUserInformationAllRec* all);
int KX_SetiSCSICHAPUserInformation(const char* unit, const KXSessionInfoRec* session, int a, int b,
                                   const KXiSCSICHAPUserPortInfoRec* port);
int KX_iSCSICHAPUserImport(const char* unit, const KXSessionInfoRec* session, const char* file);
int KX_GetiSNSInformation(const char* unit, const KXSessionInfoRec* session,
                          KXiSNSInformationRec* info);
int KX_SetiSNSInformation(const char* unit, const KXSessionInfoRec* session,
                          const KXiSNSInformationRec* info);
int KX_RequestiSCSIPing(const char* unit, const KXSessionInfoRec* session,
                        const KXiSCSIPingRec* ping);
int KX_GetiSCSIPingStatus(const char* unit, const KXSessionInfoRec* session, KXiSCSIPingRec* ping);

PERNIX_END_DECLS

/* ==== end of iSCSI ports, targets, initiators and CHAP ==== */

/* ==== LU guard and retention ==== */

#pragma pack(push, 1)

enum { PERNIX_GUARDED_LUS = 4096 };

/* Access level and retention of one LU. */
typedef struct LuGuardRec {
  int32_t lu_valid;
  int32_t capacity;
  int32_t access_level_valid;
  int32_t access_level_status;
  int32_t access_level;
  int32_t svol_disable;
  int32_t access_inhibit_mode;
  int32_t access_attr;
  int32_t changeable_attr;
  int32_t retention_term;
} LuGuardRec;
PERNIX_SIZE(LuGuardRec, 40);
PERNIX_OFFSET(LuGuardRec, lu_valid, 0);
PERNIX_OFFSET(LuGuardRec, capacity, 4);
PERNIX_OFFSET(LuGuardRec, access_level_valid, 8);
PERNIX_OFFSET(LuGuardRec, access_level_status, 12);
PERNIX_OFFSET(LuGuardRec, access_level, 16);
PERNIX_OFFSET(LuGuardRec, svol_disable, 20);
PERNIX_OFFSET(LuGuardRec, access_inhibit_mode, 24);
PERNIX_OFFSET(LuGuardRec, access_attr, 28);
PERNIX_OFFSET(LuGuardRec, changeable_attr, 32);
PERNIX_OFFSET(LuGuardRec, retention_term, 36);

typedef struct LuGuardInformationRec {
  int32_t option;
  int32_t expirationlock;
  LuGuardRec lu[PERNIX_GUARDED_LUS];
} LuGuardInformationRec;
PERNIX_SIZE(LuGuardInformationRec, 163848);
PERNIX_OFFSET(LuGuardInformationRec, option, 0);
PERNIX_OFFSET(LuGuardInformationRec, expirationlock, 4);
PERNIX_OFFSET(LuGuardInformationRec, lu, 8);

typedef struct LuAccessLevelRec {
  int32_t lu;
  int32_t access_level;
  int32_t retention_term;
} LuAccessLevelRec;
PERNIX_SIZE(LuAccessLevelRec, 12);
PERNIX_OFFSET(LuAccessLevelRec, lu, 0);
PERNIX_OFFSET(LuAccessLevelRec, access_level, 4);
PERNIX_OFFSET(LuAccessLevelRec, retention_term, 8);

#pragma pack(pop)

PERNIX_BEGIN_DECLS

int KX_GetLuGuardInformation(const char* unit, const KXSessionInfoRec* session,
                             LuGuardInformationRec* info);
int KX_SetLuAccessLevel(const char* unit, const KXSessionInfoRec* session,
                        const LuAccessLevelRec* level);
int KX_ExtendRetentionTerm(const char* unit, const KXSessionInfoRec* session, int a, int b);
int KX_SetExpirationLock(const char* unit, const KXSessionInfoRec* session, int a);

PERNIX_END_DECLS

/* ==== end of LU guard and retention ==== */

#endif
