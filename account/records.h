// Accounts, array users and the audit log: record descriptions.
#pragma once

#include "account.h"
#include "core/native.h"
#include "host/records.h"
#include "session/records.h"

// ---- account login and account management ----

KX_RECORD(KXAccountLogin, KXAccountLoginRec,
          KX_STRING(user_id),
          KX_STRING(passwd),
          KX_INT(log_option),
          KX_STRING(log_string));

KX_RECORD(KXAccountLogout, KXAccountLogoutRec,
          KX_INT(log_option));

KX_RECORD(ForcedLogoutInfo, ForcedLogoutInfoRec,
          KX_STRING(user_id));

KX_RECORD(KXAccountDelete, KXAccountDeleteRec,
          KX_STRING(user_id));

KX_RECORD(KXAccountBaseInfo, KXAccountBaseInfoRec,
          KX_STRING(user_id),
          KX_INT(set_passwd),
          KX_STRING(passwd),
          KX_INT(account_type),
          KX_INT(role),
          KX_INT(account_enable));

KX_RECORD(KXAccountInfo, KXAccountInfoRec,
          KX_NESTED(account_base_info, rec::KXAccountBaseInfo),
          KX_INT(number_session),
          KX_INT(modify_session));

// Always 21 accounts; regist_account_count says how many are in use.
KX_RECORD(KXAccountInfoList, KXAccountInfoListRec,
          KX_INT(regist_account_count),
          KX_RECORDS(account_info, rec::KXAccountInfo));

KX_RECORD(OwnUserPassword, OwnUserPasswordRec,
          KX_STRING(user_id),
          KX_STRING(old_passwd),
          KX_STRING(new_passwd));

KX_RECORD(OwnUserPermission, OwnUserPermissionRec,
          KX_INTS(operation_auth),
          KX_INT(role),
          KX_INTS(original_operation_auth));

KX_RECORD(KXAccountRole, KXAccountRoleRec,
          KX_STRING(role_name));

// Always 32 roles; role_valid_index is delivered beside them.
KX_RECORD(KXAccountRoleInformation, KXAccountRoleInformationRec,
          KX_INT(role_valid_index),
          KX_RECORDS(role_info, rec::KXAccountRole));

KX_RECORD(AccountOptionInfo, AccountOptionInfoRec,
          KX_INT(password_min_length),
          KX_INT(session_timeout));

KX_RECORD(AccountAdditionalInfo, AccountAdditionalInfoRec,
          KX_INT(keep_alive_time));

KX_RECORD(AccountOption, AccountOptionRec,
          KX_NESTED(option_info, rec::AccountOptionInfo),
          KX_NESTED(additional_info, rec::AccountAdditionalInfo));

KX_RECORD(AlertCheckUser, AlertCheckUserRec,
          KX_STRING(user_id),
          KX_STRING(passwd),
          KX_INT(account_enable));

KX_CONVERTERS(KXAccountLogin, KXAccountLogin, KXAccountLoginRec)
KX_CONVERTERS(KXAccountLogout, KXAccountLogout, KXAccountLogoutRec)
KX_CONVERTERS(ForcedLogoutInfo, ForcedLogoutInfo, ForcedLogoutInfoRec)
KX_CONVERTERS(KXAccountDelete, KXAccountDelete, KXAccountDeleteRec)
KX_CONVERTERS(KXAccountBaseInfo, KXAccountBaseInfo, KXAccountBaseInfoRec)
KX_CONVERTERS(KXAccountInfo, KXAccountInfo, KXAccountInfoRec)
KX_CONVERTERS(KXAccountInfoList, KXAccountInfoList, KXAccountInfoListRec)
KX_CONVERTERS(OwnUserPassword, OwnUserPassword, OwnUserPasswordRec)
KX_CONVERTERS(OwnUserPermission, OwnUserPermission, OwnUserPermissionRec)
KX_CONVERTERS(KXAccountRole, KXAccountRole, KXAccountRoleRec)
KX_CONVERTERS(KXAccountRoleInformation, KXAccountRoleInformation, KXAccountRoleInformationRec)
KX_CONVERTERS(AccountOptionInfo, AccountOptionInfo, AccountOptionInfoRec)
KX_CONVERTERS(AccountAdditionalInfo, AccountAdditionalInfo, AccountAdditionalInfoRec)
KX_CONVERTERS(AccountOption, AccountOption, AccountOptionRec)
KX_CONVERTERS(AlertCheckUser, AlertCheckUser, AlertCheckUserRec)

// ---- array users, user LAN settings and the audit log ----

KX_RECORD(KXUserRegist, KXUserRegistRec,
          KX_INT(num),
          KX_INT(option));

KX_RECORD(KXUserLANDetail, KXUserLANDetailRec,
          KX_INT(support_index),
          KX_INT(valid_index),
          KX_INT(setting_result),
          KX_INT(dhcp),
          KX_STRING(current_ipaddress),
          KX_STRING(current_subnet),
          KX_STRING(current_gateway),
          KX_INT(current_linkspeed_duplex),
          KX_STRING(set_ipaddress),
          KX_STRING(set_subnet),
          KX_STRING(set_gateway),
          KX_INT(set_linkspeed_duplex));

// Always two details, one per controller.
KX_RECORD(KXUserLANInformation, KXUserLANInformationRec,
          KX_RECORDS(ctl, rec::KXUserLANDetail),
          KX_INT(mainte_ip_change_mode),
          KX_INT(last_set_mode),
          KX_INT(logout_instruction));

KX_RECORD(KXAuditLogSyslogServer, KXAuditLogSyslogServerRec,
          KX_INT(server_used),
          KX_STRING(ip_address));

// Always two syslog servers.
KX_RECORD(KXAuditLogSyslogServerInfo, KXAuditLogSyslogServerInfoRec,
          KX_INT(serverall_used),
          KX_RECORDS(server, rec::KXAuditLogSyslogServer));

KX_RECORD(KXAuditLogInternalLog, KXAuditLogInternalLogRec,
          KX_INT(internallog_used));

KX_RECORD(KXAuditLogInformation, KXAuditLogInformationRec,
          KX_INT(option),
          KX_INT(set_valid),
          KX_NESTED(auditlog_server, rec::KXAuditLogSyslogServerInfo),
          KX_NESTED(auditlog_internallog, rec::KXAuditLogInternalLog));

KX_RECORD(KXAuditLogInit, KXAuditLogInitRec,
          KX_INT(set_valid));

KX_CONVERTERS(KXUserRegist, KXUserRegist, KXUserRegistRec)
KX_CONVERTERS(KXUserLANDetail, KXUserLANDetail, KXUserLANDetailRec)
KX_CONVERTERS(KXUserLANInformation, KXUserLANInformation, KXUserLANInformationRec)
KX_CONVERTERS(KXAuditLogSyslogServer, KXAuditLogSyslogServer, KXAuditLogSyslogServerRec)
KX_CONVERTERS(KXAuditLogSyslogServerInfo, KXAuditLogSyslogServerInfo, KXAuditLogSyslogServerInfoRec)
KX_CONVERTERS(KXAuditLogInternalLog, KXAuditLogInternalLog, KXAuditLogInternalLogRec)
KX_CONVERTERS(KXAuditLogInformation, KXAuditLogInformation, KXAuditLogInformationRec)
KX_CONVERTERS(KXAuditLogInit, KXAuditLogInit, KXAuditLogInitRec)
