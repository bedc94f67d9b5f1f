/* Accounts and audit: account login and management, the alert-check login,
 * the file-based user table, user LAN settings and the audit log. */
#ifndef PERNIX_ACCOUNT_H
#define PERNIX_ACCOUNT_H

#include "pernix_common.h"
#include "host.h"
#include "session.h"

/* Every account name, password and role name is held in 257 bytes: at most
 * 256 bytes and the NUL. */

#pragma pack(push, 1)

/* ---- account login and account management ---- */

typedef struct KXAccountLoginRec {
  char user_id[257];
  char passwd[257];
  uint8_t reserved[2];
  int32_t log_option;
  char log_string[128];
} KXAccountLoginRec;
PERNIX_SIZE(KXAccountLoginRec, 648);
PERNIX_OFFSET(KXAccountLoginRec, user_id, 0);
PERNIX_OFFSET(KXAccountLoginRec, passwd, 257);
PERNIX_OFFSET(KXAccountLoginRec, reserved, 514);
PERNIX_OFFSET(KXAccountLoginRec, log_option, 516);
PERNIX_OFFSET(KXAccountLoginRec, log_string, 520);

typedef struct KXAccountLogoutRec {
  int32_t log_option;
} KXAccountLogoutRec;
PERNIX_SIZE(KXAccountLogoutRec, 4);
PERNIX_OFFSET(KXAccountLogoutRec, log_option, 0);

typedef struct ForcedLogoutInfoRec {
  char user_id[257];
} ForcedLogoutInfoRec;
PERNIX_SIZE(ForcedLogoutInfoRec, 257);
PERNIX_OFFSET(ForcedLogoutInfoRec, user_id, 0);

typedef struct KXAccountDeleteRec {
  char user_id[257];
} KXAccountDeleteRec;
PERNIX_SIZE(KXAccountDeleteRec, 257);
PERNIX_OFFSET(KXAccountDeleteRec, user_id, 0);

typedef struct KXAccountBaseInfoRec {
  char user_id[257];
  uint8_t reserved1[3];
  int32_t set_passwd;
  char passwd[257];
  uint8_t reserved2[3];
  int32_t account_type;
  int32_t role;
  int32_t account_enable;
} KXAccountBaseInfoRec;
PERNIX_SIZE(KXAccountBaseInfoRec, 536);
PERNIX_OFFSET(KXAccountBaseInfoRec, user_id, 0);
PERNIX_OFFSET(KXAccountBaseInfoRec, reserved1, 257);
PERNIX_OFFSET(KXAccountBaseInfoRec, set_passwd, 260);
PERNIX_OFFSET(KXAccountBaseInfoRec, passwd, 264);
PERNIX_OFFSET(KXAccountBaseInfoRec, reserved2, 521);
PERNIX_OFFSET(KXAccountBaseInfoRec, account_type, 524);
PERNIX_OFFSET(KXAccountBaseInfoRec, role, 528);
PERNIX_OFFSET(KXAccountBaseInfoRec, account_enable, 532);

typedef struct KXAccountInfoRec {
  KXAccountBaseInfoRec account_base_info;
  int32_t number_session;
  int32_t modify_session;
} KXAccountInfoRec;
PERNIX_SIZE(KXAccountInfoRec, 544);
PERNIX_OFFSET(KXAccountInfoRec, account_base_info, 0);
PERNIX_OFFSET(KXAccountInfoRec, number_session, 536);
PERNIX_OFFSET(KXAccountInfoRec, modify_session, 540);

enum { PERNIX_MAX_ACCOUNTS = 21 };

typedef struct KXAccountInfoListRec {
  int32_t regist_account_count;
  KXAccountInfoRec account_info[PERNIX_MAX_ACCOUNTS];
} KXAccountInfoListRec;
PERNIX_SIZE(KXAccountInfoListRec, 11428);
PERNIX_OFFSET(KXAccountInfoListRec, regist_account_count, 0);
PERNIX_OFFSET(KXAccountInfoListRec, account_info, 4);

typedef struct OwnUserPasswordRec {
  char user_id[257];
  char old_passwd[257];
  char new_passwd[257];
} OwnUserPasswordRec;
PERNIX_SIZE(OwnUserPasswordRec, 771);
PERNIX_OFFSET(OwnUserPasswordRec, user_id, 0);
PERNIX_OFFSET(OwnUserPasswordRec, old_passwd, 257);
PERNIX_OFFSET(OwnUserPasswordRec, new_passwd, 514);

typedef struct OwnUserPermissionRec {
  int32_t operation_auth[9];
  int32_t role;
  int32_t original_operation_auth[9];
} OwnUserPermissionRec;
PERNIX_SIZE(OwnUserPermissionRec, 76);
PERNIX_OFFSET(OwnUserPermissionRec, operation_auth, 0);
PERNIX_OFFSET(OwnUserPermissionRec, role, 36);
PERNIX_OFFSET(OwnUserPermissionRec, original_operation_auth, 40);

typedef struct KXAccountRoleRec {
  char role_name[257];
} KXAccountRoleRec;
PERNIX_SIZE(KXAccountRoleRec, 257);
PERNIX_OFFSET(KXAccountRoleRec, role_name, 0);

enum { PERNIX_MAX_ROLES = 32 };

/* The roles follow one another every 257 bytes: none but the first is aligned. */
typedef struct KXAccountRoleInformationRec {
  int32_t role_valid_index;
  KXAccountRoleRec role_info[PERNIX_MAX_ROLES];
} KXAccountRoleInformationRec;
PERNIX_SIZE(KXAccountRoleInformationRec, 8228);
PERNIX_OFFSET(KXAccountRoleInformationRec, role_valid_index, 0);
PERNIX_OFFSET(KXAccountRoleInformationRec, role_info, 4);

typedef struct AccountOptionInfoRec {
  int32_t password_min_length;
  int32_t session_timeout;
} AccountOptionInfoRec;
PERNIX_SIZE(AccountOptionInfoRec, 8);
PERNIX_OFFSET(AccountOptionInfoRec, password_min_length, 0);
PERNIX_OFFSET(AccountOptionInfoRec, session_timeout, 4);

typedef struct AccountAdditionalInfoRec {
  int32_t keep_alive_time;
} AccountAdditionalInfoRec;
PERNIX_SIZE(AccountAdditionalInfoRec, 4);
PERNIX_OFFSET(AccountAdditionalInfoRec, keep_alive_time, 0);

typedef struct AccountOptionRec {
  AccountOptionInfoRec option_info;
  AccountAdditionalInfoRec additional_info;
} AccountOptionRec;
PERNIX_SIZE(AccountOptionRec, 12);
PERNIX_OFFSET(AccountOptionRec, option_info, 0);
PERNIX_OFFSET(AccountOptionRec, additional_info, 8);

typedef struct AlertCheckUserRec {
  char user_id[257];
  char passwd[257];
  uint8_t reserved[2];
  int32_t account_enable;
} AlertCheckUserRec;
PERNIX_SIZE(AlertCheckUserRec, 520);
PERNIX_OFFSET(AlertCheckUserRec, user_id, 0);
PERNIX_OFFSET(AlertCheckUserRec, passwd, 257);
PERNIX_OFFSET(AlertCheckUserRec, reserved, 514);
PERNIX_OFFSET(AlertCheckUserRec, account_enable, 516);

/* The two names KX_GetLoginUser answers (C only). */
typedef struct KXLoginUserNamesRec {
  char first[17];
  char second[15];
} KXLoginUserNamesRec;
PERNIX_SIZE(KXLoginUserNamesRec, 32);
PERNIX_OFFSET(KXLoginUserNamesRec, first, 0);
PERNIX_OFFSET(KXLoginUserNamesRec, second, 17);

/* ---- array users, user LAN settings and the audit log ---- */

typedef struct KXUserRegistRec {
  int32_t num;
  int32_t option;
} KXUserRegistRec;
PERNIX_SIZE(KXUserRegistRec, 8);
PERNIX_OFFSET(KXUserRegistRec, num, 0);
PERNIX_OFFSET(KXUserRegistRec, option, 4);

typedef struct KXUserLANDetailRec {
  int32_t support_index;
  int32_t valid_index;
  int32_t setting_result;
  int32_t dhcp;
  char current_ipaddress[16];
  char current_subnet[16];
  char current_gateway[16];
  int32_t current_linkspeed_duplex;
  char set_ipaddress[16];
  char set_subnet[16];
  char set_gateway[16];
  int32_t set_linkspeed_duplex;
} KXUserLANDetailRec;
PERNIX_SIZE(KXUserLANDetailRec, 120);
PERNIX_OFFSET(KXUserLANDetailRec, support_index, 0);
PERNIX_OFFSET(KXUserLANDetailRec, valid_index, 4);
PERNIX_OFFSET(KXUserLANDetailRec, setting_result, 8);
PERNIX_OFFSET(KXUserLANDetailRec, dhcp, 12);
PERNIX_OFFSET(KXUserLANDetailRec, current_ipaddress, 16);
PERNIX_OFFSET(KXUserLANDetailRec, current_subnet, 32);
PERNIX_OFFSET(KXUserLANDetailRec, current_gateway, 48);
PERNIX_OFFSET(KXUserLANDetailRec, current_linkspeed_duplex, 64);
PERNIX_OFFSET(KXUserLANDetailRec, set_ipaddress, 68);
PERNIX_OFFSET(KXUserLANDetailRec, set_subnet, 84);
PERNIX_OFFSET(KXUserLANDetailRec, set_gateway, 100);
PERNIX_OFFSET(KXUserLANDetailRec, set_linkspeed_duplex, 116);

/* One detail record per controller. */
typedef struct KXUserLANInformationRec {
  KXUserLANDetailRec ctl[2];
  int32_t mainte_ip_change_mode;
  int32_t last_set_mode;
  int32_t logout_instruction;
} KXUserLANInformationRec;
PERNIX_SIZE(KXUserLANInformationRec, 252);
PERNIX_OFFSET(KXUserLANInformationRec, ctl, 0);
PERNIX_OFFSET(KXUserLANInformationRec, mainte_ip_change_mode, 240);
PERNIX_OFFSET(KXUserLANInformationRec, last_set_mode, 244);
PERNIX_OFFSET(KXUserLANInformationRec, logout_instruction, 248);

typedef struct KXAuditLogSyslogServerRec {
  int32_t server_used;
  char ip_address[16];
} KXAuditLogSyslogServerRec;
PERNIX_SIZE(KXAuditLogSyslogServerRec, 20);
PERNIX_OFFSET(KXAuditLogSyslogServerRec, server_used, 0);
PERNIX_OFFSET(KXAuditLogSyslogServerRec, ip_address, 4);

typedef struct KXAuditLogSyslogServerInfoRec {
  int32_t serverall_used;
  KXAuditLogSyslogServerRec server[2];
} KXAuditLogSyslogServerInfoRec;
PERNIX_SIZE(KXAuditLogSyslogServerInfoRec, 44);
PERNIX_OFFSET(KXAuditLogSyslogServerInfoRec, serverall_used, 0);
PERNIX_OFFSET(KXAuditLogSyslogServerInfoRec, server, 4);

typedef struct KXAuditLogInternalLogRec {
  int32_t internallog_used;
} KXAuditLogInternalLogRec;
PERNIX_SIZE(KXAuditLogInternalLogRec, 4);
PERNIX_OFFSET(KXAuditLogInternalLogRec, internallog_used, 0);

typedef struct KXAuditLogInformationRec {
  int32_t option;
  int32_t set_valid;
  KXAuditLogSyslogServerInfoRec auditlog_server;
  KXAuditLogInternalLogRec auditlog_internallog;
} KXAuditLogInformationRec;
PERNIX_SIZE(KXAuditLogInformationRec, 56);
PERNIX_OFFSET(KXAuditLogInformationRec, option, 0);
PERNIX_OFFSET(KXAuditLogInformationRec, set_valid, 4);
PERNIX_OFFSET(KXAuditLogInformationRec, auditlog_server, 8);
PERNIX_OFFSET(KXAuditLogInformationRec, auditlog_internallog, 52);

typedef struct KXAuditLogInitRec {
  int32_t set_valid;
} KXAuditLogInitRec;
PERNIX_SIZE(KXAuditLogInitRec, 4);
PERNIX_OFFSET(KXAuditLogInitRec, set_valid, 0);

/* The permission table a Fibre Channel permission import fills. */
enum { PERNIX_MAX_PERMISSIONS = 128 };

#pragma pack(pop)

PERNIX_BEGIN_DECLS

/* ---- account login and account management ---- */
int KX_LoginKXAccount(const char* unit, const KXAccountLoginRec* login, KXSessionInfoRec* session);
int KX_LogoutKXAccount(const char* unit, const KXSessionInfoRec* session,
                       const KXAccountLogoutRec* logout);
int KX_LoginKXAccountAlertCheck(const char* unit, int a, KXSessionInfoRec* session);
int KX_LogoutKXAccountAlertCheck(const char* unit, const KXSessionInfoRec* session,
                                 const KXAccountLogoutRec* logout);
int KX_ForcedLogoutKXAccount(const char* unit, const KXSessionInfoRec* session,
                             const ForcedLogoutInfoRec* info);
int KX_GetAccountInformation(const char* unit, const KXSessionInfoRec* session,
                             KXAccountInfoListRec* list);
int KX_CreateAccount(const char* unit, const KXSessionInfoRec* session,
                     const KXAccountBaseInfoRec* base);
int KX_ChangeAccount(const char* unit, const KXSessionInfoRec* session,
                     const KXAccountBaseInfoRec* base);
int KX_DeleteAccount(const char* unit, const KXSessionInfoRec* session, const KXAccountDeleteRec* del);
int KX_ChangeOwnUserPassword(const char* unit, const KXSessionInfoRec* session,
                             const OwnUserPasswordRec* pw);
int KX_GetOwnUserPermission(const char* unit, const KXSessionInfoRec* session,
                            OwnUserPermissionRec* perm);
int KX_GetKXAccountRoleInformation(const char* unit, const KXSessionInfoRec* session,
                                   KXAccountRoleInformationRec* roles);
int KX_GetAccountOption(const char* unit, const KXSessionInfoRec* session, AccountOptionRec* opt);
int KX_AlertCheck(const char* unit, const KXSessionInfoRec* session, int a, int* out);
int KX_SetAlertCheckUser(const AlertCheckUserRec* user);
int KX_GetAlertCheckUser(AlertCheckUserRec* user);
int KX_GetLoginUser(const char* path, int a, KXLoginUserNamesRec* names);

/* ---- array users, user LAN settings and the audit log ---- */
int KX_GetUserInformation(const char* path, int a, KXUserRegistRec* regist);
int KX_RegistUser(const char* path, int a, const KXUserInfoRec* user);
int KX_ChangeUser(const char* path, int a, const KXUserInfoRec* old_user,
                  const KXUserInfoRec* new_user);
int KX_DeleteUser(const char* path, int a, const KXUserInfoRec* user);
int KX_DeleteAllUser(const char* path, int a);
int KX_PasswdChange(const char* path);
int KX_PasswdCheck(const char* text);
int KX_GetKXUserLANInformation(const char* unit, const KXSessionInfoRec* session,
                               KXUserLANInformationRec* lan);
int KX_SetKXUserLANInformation(const char* unit, const KXSessionInfoRec* session,
                               const KXUserLANInformationRec* lan);
int KX_LoadKXUserLANInformation(const char* unit, const KXSessionInfoRec* session,
                                const char* path, KXUserLANInformationRec* lan);
int KX_GetKXAuditLogInformation(const char* unit, const KXSessionInfoRec* session,
                                KXAuditLogInformationRec* info);
int KX_SetKXAuditLogInformation(const char* unit, const KXSessionInfoRec* session,
                                const KXAuditLogInformationRec* info);
int KX_KXAuditLogExport(const char* unit, const KXSessionInfoRec* session, const char* path);
int KX_InitKXAuditLog(const char* unit, const KXSessionInfoRec* session,
                      const KXAuditLogInitRec* init);
/* Fills `count` and up to PERNIX_MAX_PERMISSIONS records of `perms`. */
int KX_FibreInfoPermissionImport(const char* unit, const char* path, int a, int b, int* count,
                                 FibreInformationPermissionRec* perms);

PERNIX_END_DECLS

#endif
