/* Sessions and units: session token, unit login, unit registry, discovery,
 * unit identity and the unit condition report. */
#ifndef PERNIX_SESSION_H
#define PERNIX_SESSION_H

#include "pernix_common.h"

#pragma pack(push, 1)

/* Opaque session token handed out by the account login. */
typedef struct KXSessionInfoRec {
  uint8_t session_id[32];
} KXSessionInfoRec;
PERNIX_SIZE(KXSessionInfoRec, 32);
PERNIX_OFFSET(KXSessionInfoRec, session_id, 0);

/* Unit-login credentials: 34 bytes of data. */
typedef struct KXUserInfoRec {
  char user[17];
  char passwd[17];
} KXUserInfoRec;
PERNIX_SIZE(KXUserInfoRec, 34);
PERNIX_OFFSET(KXUserInfoRec, user, 0);
PERNIX_OFFSET(KXUserInfoRec, passwd, 17);

/* The unit login hands the credentials over in a 36-byte block. */
typedef struct KXUserInfoBlock {
  KXUserInfoRec info;
  uint8_t reserved[2];
} KXUserInfoBlock;
PERNIX_SIZE(KXUserInfoBlock, 36);

/* What the unit login answers: two strings in a 36-byte block. */
typedef struct KXLoginResultRec {
  char first[17];
  char second[17];
  uint8_t reserved[2];
} KXLoginResultRec;
PERNIX_SIZE(KXLoginResultRec, 36);
PERNIX_OFFSET(KXLoginResultRec, first, 0);
PERNIX_OFFSET(KXLoginResultRec, second, 17);

/* ---- unit registry and discovery ---- */

/* A registered unit: 256 bytes.  device_type widens without sign, the other
 * one-byte codes with sign. */
typedef struct KXUnitParamRec {
  char unit_name[65];
  char group_name[17];
  int8_t connect_type;
  int8_t kx_type;
  uint8_t device_type;
  int8_t unit_conf;
  int8_t alert;
  char ctl0[80];
  char ctl1[80];
  char serial[9];
} KXUnitParamRec;
PERNIX_SIZE(KXUnitParamRec, 256);
PERNIX_OFFSET(KXUnitParamRec, unit_name, 0);
PERNIX_OFFSET(KXUnitParamRec, group_name, 65);
PERNIX_OFFSET(KXUnitParamRec, connect_type, 82);
PERNIX_OFFSET(KXUnitParamRec, kx_type, 83);
PERNIX_OFFSET(KXUnitParamRec, device_type, 84);
PERNIX_OFFSET(KXUnitParamRec, unit_conf, 85);
PERNIX_OFFSET(KXUnitParamRec, alert, 86);
PERNIX_OFFSET(KXUnitParamRec, ctl0, 87);
PERNIX_OFFSET(KXUnitParamRec, ctl1, 167);
PERNIX_OFFSET(KXUnitParamRec, serial, 247);

/* The address a discovery probes: 81 bytes. */
typedef struct DiscoverEntryRec {
  uint8_t connect_type;
  char ip_dev[80];
} DiscoverEntryRec;
PERNIX_SIZE(DiscoverEntryRec, 81);
PERNIX_OFFSET(DiscoverEntryRec, connect_type, 0);
PERNIX_OFFSET(DiscoverEntryRec, ip_dev, 1);

/* The unit that answered a discovery: 94 bytes, one-byte codes unsigned. */
typedef struct DiscoverUnitRec {
  uint8_t connect_type;
  char ip_dev[80];
  uint8_t kx_type;
  uint8_t device_type;
  uint8_t unit_conf;
  uint8_t ctlno;
  char serial[9];
} DiscoverUnitRec;
PERNIX_SIZE(DiscoverUnitRec, 94);
PERNIX_OFFSET(DiscoverUnitRec, connect_type, 0);
PERNIX_OFFSET(DiscoverUnitRec, ip_dev, 1);
PERNIX_OFFSET(DiscoverUnitRec, kx_type, 81);
PERNIX_OFFSET(DiscoverUnitRec, device_type, 82);
PERNIX_OFFSET(DiscoverUnitRec, unit_conf, 83);
PERNIX_OFFSET(DiscoverUnitRec, ctlno, 84);
PERNIX_OFFSET(DiscoverUnitRec, serial, 85);

/* ---- unit identity and maintenance ---- */

/* Naming of one controller: 16 bytes. */
typedef struct ControllerInfoRec {
  int32_t ctrl_name_mode;
  char id_front[9];
  char id_rear[3];
} ControllerInfoRec;
PERNIX_SIZE(ControllerInfoRec, 16);
PERNIX_OFFSET(ControllerInfoRec, ctrl_name_mode, 0);
PERNIX_OFFSET(ControllerInfoRec, id_front, 4);
PERNIX_OFFSET(ControllerInfoRec, id_rear, 13);

/* The unit's identifier and its two controllers: 40 bytes. */
typedef struct UnitIdentifierRec {
  char equipment_id[5];
  uint8_t reserved[3];
  ControllerInfoRec ctl[2];
} UnitIdentifierRec;
PERNIX_SIZE(UnitIdentifierRec, 40);
PERNIX_OFFSET(UnitIdentifierRec, equipment_id, 0);
PERNIX_OFFSET(UnitIdentifierRec, reserved, 5);
PERNIX_OFFSET(UnitIdentifierRec, ctl, 8);

/* Start-up of the management front end: 250 bytes. */
typedef struct GUIInitializeRec {
  char damp_path[250];
} GUIInitializeRec;
PERNIX_SIZE(GUIInitializeRec, 250);
PERNIX_OFFSET(GUIInitializeRec, damp_path, 0);

/* Buffer sizes of the three library revision strings. */
enum {
  PERNIX_REVISION_SIZE = 20,
  PERNIX_REVISION2_SIZE = 20,
  PERNIX_REVISION3_SIZE = 52,
  PERNIX_MODIFY_INFO_SIZE = 1024
};

/* ---- unit condition report ---- */

/* Cache of one slot: 8 bytes. */
typedef struct CacheStatusRec {
  int32_t option;
  int32_t condition;
} CacheStatusRec;
PERNIX_SIZE(CacheStatusRec, 8);
PERNIX_OFFSET(CacheStatusRec, option, 0);
PERNIX_OFFSET(CacheStatusRec, condition, 4);

/* One extension slot of a NAS node: 16 bytes. */
typedef struct NNCExtensionSlotStatusRec {
  int32_t valid_index;
  uint8_t card_state;
  uint8_t card_type;
  uint8_t connector_state[8];
  uint8_t reserved[2];
} NNCExtensionSlotStatusRec;
PERNIX_SIZE(NNCExtensionSlotStatusRec, 16);
PERNIX_OFFSET(NNCExtensionSlotStatusRec, valid_index, 0);
PERNIX_OFFSET(NNCExtensionSlotStatusRec, card_state, 4);
PERNIX_OFFSET(NNCExtensionSlotStatusRec, card_type, 5);
PERNIX_OFFSET(NNCExtensionSlotStatusRec, connector_state, 6);
PERNIX_OFFSET(NNCExtensionSlotStatusRec, reserved, 14);

/* The parts of one NAS node: 92 bytes. */
typedef struct NNCPartsStatusRec {
  int32_t valid_index;
  uint8_t dimm[4];
  uint8_t ps[2];
  uint8_t fan[3];
  uint8_t connector[8];
  uint8_t nnc_type;
  uint8_t reserved[2];
  NNCExtensionSlotStatusRec ext_slot[4];
  uint8_t nnc_base;
  uint8_t reserved2[3];
} NNCPartsStatusRec;
PERNIX_SIZE(NNCPartsStatusRec, 92);
PERNIX_OFFSET(NNCPartsStatusRec, valid_index, 0);
PERNIX_OFFSET(NNCPartsStatusRec, dimm, 4);
PERNIX_OFFSET(NNCPartsStatusRec, ps, 8);
PERNIX_OFFSET(NNCPartsStatusRec, fan, 10);
PERNIX_OFFSET(NNCPartsStatusRec, connector, 13);
PERNIX_OFFSET(NNCPartsStatusRec, nnc_type, 21);
PERNIX_OFFSET(NNCPartsStatusRec, reserved, 22);
PERNIX_OFFSET(NNCPartsStatusRec, ext_slot, 24);
PERNIX_OFFSET(NNCPartsStatusRec, nnc_base, 88);
PERNIX_OFFSET(NNCPartsStatusRec, reserved2, 89);

/* The hardware condition of one unit: 1536 bytes.  device_type and its sub
 * code widen with sign, controller_condition without. */
typedef struct UnitConditionRec {
  char micro[9];
  char micro_pair[11];
  int32_t max_slot;
  CacheStatusRec cache[32];
  CacheStatusRec cache2[32];
  uint8_t ps[62];
  uint8_t fan[93];
  uint8_t ac[2];
  uint8_t batt[4];
  uint8_t batt_bk[2];
  uint8_t optionBoard_2port[2];
  uint8_t ctl0_port[4];
  uint8_t ctl1_port[4];
  uint8_t ctl0_port_type[4];
  uint8_t ctl1_port_type[4];
  uint8_t connector[2][4][2]; /* controller, port, byte */
  int8_t device_type;
  int8_t device_type_KXM_sub_code;
  char ctl0_flush[7];
  char ctl1_flush[7];
  char ctl0_ip[16];
  char ctl1_ip[16];
  char ctl0_subnet[16];
  char ctl1_subnet[16];
  char ctl0_gateway[16];
  char ctl1_gateway[16];
  uint8_t controller_condition;
  uint8_t enclosure[62];
  uint8_t loop[8];
  char serial[12];
  int32_t add_info_index;
  int32_t unit_count;
  uint8_t unit_type[31];
  uint8_t unit_type_sub_code[31];
  uint8_t unit_kind[31];
  uint8_t nnc[4];
  uint8_t reserved[3];
  NNCPartsStatusRec nnc_parts[4];
  uint8_t function_revision[128];
  int32_t ctl_num;
} UnitConditionRec;
PERNIX_SIZE(UnitConditionRec, 1536);
PERNIX_OFFSET(UnitConditionRec, micro, 0);
PERNIX_OFFSET(UnitConditionRec, micro_pair, 9);
PERNIX_OFFSET(UnitConditionRec, max_slot, 20);
PERNIX_OFFSET(UnitConditionRec, cache, 24);
PERNIX_OFFSET(UnitConditionRec, cache2, 280);
PERNIX_OFFSET(UnitConditionRec, ps, 536);
PERNIX_OFFSET(UnitConditionRec, fan, 598);
PERNIX_OFFSET(UnitConditionRec, ac, 691);
PERNIX_OFFSET(UnitConditionRec, batt, 693);
PERNIX_OFFSET(UnitConditionRec, batt_bk, 697);
PERNIX_OFFSET(UnitConditionRec, optionBoard_2port, 699);
PERNIX_OFFSET(UnitConditionRec, ctl0_port, 701);
PERNIX_OFFSET(UnitConditionRec, ctl1_port, 705);
PERNIX_OFFSET(UnitConditionRec, ctl0_port_type, 709);
PERNIX_OFFSET(UnitConditionRec, ctl1_port_type, 713);
PERNIX_OFFSET(UnitConditionRec, connector, 717);
PERNIX_OFFSET(UnitConditionRec, device_type, 733);
PERNIX_OFFSET(UnitConditionRec, device_type_KXM_sub_code, 734);
PERNIX_OFFSET(UnitConditionRec, ctl0_flush, 735);
PERNIX_OFFSET(UnitConditionRec, ctl1_flush, 742);
PERNIX_OFFSET(UnitConditionRec, ctl0_ip, 749);
PERNIX_OFFSET(UnitConditionRec, ctl1_ip, 765);
PERNIX_OFFSET(UnitConditionRec, ctl0_subnet, 781);
PERNIX_OFFSET(UnitConditionRec, ctl1_subnet, 797);
PERNIX_OFFSET(UnitConditionRec, ctl0_gateway, 813);
PERNIX_OFFSET(UnitConditionRec, ctl1_gateway, 829);
PERNIX_OFFSET(UnitConditionRec, controller_condition, 845);
PERNIX_OFFSET(UnitConditionRec, enclosure, 846);
PERNIX_OFFSET(UnitConditionRec, loop, 908);
PERNIX_OFFSET(UnitConditionRec, serial, 916);
PERNIX_OFFSET(UnitConditionRec, add_info_index, 928);
PERNIX_OFFSET(UnitConditionRec, unit_count, 932);
PERNIX_OFFSET(UnitConditionRec, unit_type, 936);
PERNIX_OFFSET(UnitConditionRec, unit_type_sub_code, 967);
PERNIX_OFFSET(UnitConditionRec, unit_kind, 998);
PERNIX_OFFSET(UnitConditionRec, nnc, 1029);
PERNIX_OFFSET(UnitConditionRec, reserved, 1033);
PERNIX_OFFSET(UnitConditionRec, nnc_parts, 1036);
PERNIX_OFFSET(UnitConditionRec, function_revision, 1404);
PERNIX_OFFSET(UnitConditionRec, ctl_num, 1532);

#pragma pack(pop)

PERNIX_BEGIN_DECLS

int KX_LoginKXUnit(const char* unit, int mode, const KXUserInfoRec* user, KXLoginResultRec* result);
int KX_LogoutKXUnit(const char* unit, int mode);
int KX_CheckLogin(const char* unit, int mode, int* state);
int KX_ResetLogin(const char* unit, int mode);
int KX_KeepSession(const char* unit, const KXSessionInfoRec* session);

/* unit registry and discovery */
int KX_UnitAdd(const KXUnitParamRec* unit);
int KX_UnitAddByIP(const KXUnitParamRec* unit);
int KX_UnitChange(const char* unit, const KXUnitParamRec* param);
int KX_UnitChangeByIP(const char* unit, const KXUnitParamRec* param);
int KX_UnitDelete(const char* unit);
int KX_GetUnitParam(const char* unit, KXUnitParamRec* param);
int KX_GetUnitCount(int* count);
int KX_GetUnitParamTable(int count, KXUnitParamRec* params);
int KX_DiscoverUnitInformation(const DiscoverEntryRec* entry, DiscoverUnitRec* unit);
int KX_DiscoverUnitInformationEx(const DiscoverEntryRec* entry, DiscoverUnitRec* unit);

/* unit identity and maintenance */
int KX_GetUnitIdentifier(const char* unit, UnitIdentifierRec* id);
int KX_SetUnitIdentifier(const char* unit, const UnitIdentifierRec* id);
int KX_UnitReboot(const char* unit, const KXSessionInfoRec* session);
int KX_TestUnitReady(const char* unit, int value);
int KX_GUIInitialize(const GUIInitializeRec* init);
int KX_EnvironmentCheck(void);
int KX_JavaVersionCheck(const char* version);
int KX_RgLuFileOutput(const char* unit, const char* path);
int KX_ModifyInfo(const char* name, int value, char* result);
int KX_APIRevision(char* first, char* second, char* third);

/* unit condition report */
int KX_GetUnitCondition(const char* unit, const KXSessionInfoRec* session, int a,
                        UnitConditionRec* condition);

PERNIX_END_DECLS

#endif
