#include "account.h"
#include "fake.h"

// ---- account login and account management
PERNIX_FAKE(KX_LoginKXAccount, Str<65>, In<KXAccountLoginRec>, Out<KXSessionInfoRec>)
PERNIX_FAKE(KX_LogoutKXAccount, Str<65>, In<KXSessionInfoRec>, In<KXAccountLogoutRec>)
PERNIX_FAKE(KX_LoginKXAccountAlertCheck, Str<65>, Int, Out<KXSessionInfoRec>)
PERNIX_FAKE(KX_LogoutKXAccountAlertCheck, Str<65>, In<KXSessionInfoRec>, In<KXAccountLogoutRec>)
PERNIX_FAKE(KX_ForcedLogoutKXAccount, Str<65>, In<KXSessionInfoRec>, In<ForcedLogoutInfoRec>)
PERNIX_FAKE(KX_GetAccountInformation, Str<65>, In<KXSessionInfoRec>, Out<KXAccountInfoListRec>)
PERNIX_FAKE(KX_CreateAccount, Str<65>, In<KXSessionInfoRec>, In<KXAccountBaseInfoRec>)
PERNIX_FAKE(KX_ChangeAccount, Str<65>, In<KXSessionInfoRec>, In<KXAccountBaseInfoRec>)
PERNIX_FAKE(KX_DeleteAccount, Str<65>, In<KXSessionInfoRec>, In<KXAccountDeleteRec>)
PERNIX_FAKE(KX_ChangeOwnUserPassword, Str<65>, In<KXSessionInfoRec>, In<OwnUserPasswordRec>)
PERNIX_FAKE(KX_GetOwnUserPermission, Str<65>, In<KXSessionInfoRec>, Out<OwnUserPermissionRec>)
PERNIX_FAKE(KX_GetKXAccountRoleInformation, Str<65>, In<KXSessionInfoRec>,
            Out<KXAccountRoleInformationRec>)
PERNIX_FAKE(KX_GetAccountOption, Str<65>, In<KXSessionInfoRec>, Out<AccountOptionRec>)
PERNIX_FAKE(KX_AlertCheck, Str<65>, In<KXSessionInfoRec>, Int, IntOut)
PERNIX_FAKE(KX_SetAlertCheckUser, In<AlertCheckUserRec>)
PERNIX_FAKE(KX_GetAlertCheckUser, Out<AlertCheckUserRec>)
PERNIX_FAKE(KX_GetLoginUser, Str<1024>, Int, Out<KXLoginUserNamesRec>)

// ---- array users, user LAN settings and the audit log
PERNIX_FAKE(KX_GetUserInformation, Str<1024>, Int, Out<KXUserRegistRec>)
PERNIX_FAKE(KX_RegistUser, Str<1024>, Int, In<KXUserInfoRec>)
PERNIX_FAKE(KX_ChangeUser, Str<1024>, Int, In<KXUserInfoRec>, In<KXUserInfoRec>)
PERNIX_FAKE(KX_DeleteUser, Str<1024>, Int, In<KXUserInfoRec>)
PERNIX_FAKE(KX_DeleteAllUser, Str<1024>, Int)
PERNIX_FAKE(KX_PasswdChange, Str<1024>)
PERNIX_FAKE(KX_GetKXUserLANInformation, Str<65>, In<KXSessionInfoRec>, Out<KXUserLANInformationRec>)
PERNIX_FAKE(KX_SetKXUserLANInformation, Str<65>, In<KXSessionInfoRec>, In<KXUserLANInformationRec>)
PERNIX_FAKE(KX_LoadKXUserLANInformation, Str<65>, In<KXSessionInfoRec>, Str<1024>,
            Out<KXUserLANInformationRec>)
PERNIX_FAKE(KX_GetKXAuditLogInformation, Str<65>, In<KXSessionInfoRec>, Out<KXAuditLogInformationRec>)
PERNIX_FAKE(KX_SetKXAuditLogInformation, Str<65>, In<KXSessionInfoRec>, In<KXAuditLogInformationRec>)
PERNIX_FAKE(KX_KXAuditLogExport, Str<65>, In<KXSessionInfoRec>, Str<1024>)
PERNIX_FAKE(KX_InitKXAuditLog, Str<65>, In<KXSessionInfoRec>, In<KXAuditLogInitRec>)
PERNIX_FAKE(KX_FibreInfoPermissionImport, Str<65>, Str<1024>, Int, Int, IntOut,
            Out<FibreInformationPermissionRec[PERNIX_MAX_PERMISSIONS]>)

// The text is as long as the caller's String: recorded up to and with its NUL.
extern "C" __attribute__((visibility("default"))) int KX_PasswdCheck(const char* text) {
  fake::Call& call = fake::begin("KX_PasswdCheck");
  fake::record(call, text, text == nullptr ? 0 : std::strlen(text) + 1);
  return fake::finish("KX_PasswdCheck");
}
