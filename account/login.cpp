// Account login and logout, account management, own rights, roles, account
// options and the alert-check login.
#include "account/records.h"

using namespace kx;

namespace {

// The two names KX_GetLoginUser answers, in the native's own frame.  An empty
// first name means there is nothing to return: null, and no report.
struct LoginNames {
  KXLoginUserNamesRec names{};
  using result_type = jobjectArray;

  bool prepare(JNIEnv*) { return true; }
  KXLoginUserNamesRec* arg() { return &names; }
  jobjectArray convert(JNIEnv* env, int& code) {
    if (names.first[0] == '\0') return nullptr;
    return string_array(env, {{names.first, sizeof names.first}, {names.second, sizeof names.second}},
                        code);
  }
};

}  // namespace

// ---- login and logout

// The library fills the session record, which comes after the credentials.
KX_NATIVE(jobject, LoginKXAccount, jstring unit, jobject login) {
  return call(env, KX_LoginKXAccount, Unit(unit), Secret(login, rec::KXAccountLogin),
              Out(rec::KXSessionInfo));
}

KX_SESSION_SETTER(LogoutKXAccount, KXAccountLogout)

KX_NATIVE(jobject, LoginKXAccountAlertCheck, jstring unit, jint a) {
  return call(env, KX_LoginKXAccountAlertCheck, Unit(unit), a, Out(rec::KXSessionInfo));
}

KX_SESSION_SETTER(LogoutKXAccountAlertCheck, KXAccountLogout)

KX_SESSION_SETTER(ForcedLogoutKXAccount, ForcedLogoutInfo)

// ---- accounts

// Every account's base record carries its password field.
KX_NATIVE(jobject, GetAccountInformation, jstring unit, jobject session) {
  return call(env, KX_GetAccountInformation, Unit(unit), Session(session),
              Out(rec::KXAccountInfoList, true));
}

KX_NATIVE(void, CreateAccount, jstring unit, jobject session, jobject base) {
  call(env, KX_CreateAccount, Unit(unit), Session(session), Secret(base, rec::KXAccountBaseInfo));
}

KX_NATIVE(void, ChangeAccount, jstring unit, jobject session, jobject base) {
  call(env, KX_ChangeAccount, Unit(unit), Session(session), Secret(base, rec::KXAccountBaseInfo));
}

KX_SESSION_SETTER(DeleteAccount, KXAccountDelete)

KX_NATIVE(void, ChangeOwnUserPassword, jstring unit, jobject session, jobject pw) {
  call(env, KX_ChangeOwnUserPassword, Unit(unit), Session(session), Secret(pw, rec::OwnUserPassword));
}

KX_SESSION_GETTER(GetOwnUserPermission, OwnUserPermission)

KX_SESSION_GETTER(GetKXAccountRoleInformation, KXAccountRoleInformation)

KX_SESSION_GETTER(GetAccountOption, AccountOption)

// ---- alert check: its own stored credentials, no unit and no session

KX_NATIVE(jint, AlertCheck, jstring unit, jobject session, jint a) {
  return call(env, KX_AlertCheck, Unit(unit), Session(session), a, IntOut{});
}

KX_NATIVE(void, SetAlertCheckUser, jobject user) {
  call(env, KX_SetAlertCheckUser, Secret(user, rec::AlertCheckUser));
}

KX_NATIVE(jobject, GetAlertCheckUser) {
  return call(env, KX_GetAlertCheckUser, Out(rec::AlertCheckUser, true));
}

KX_NATIVE(jobjectArray, GetLoginUser, jstring path, jint a) {
  return call(env, KX_GetLoginUser, Path(path), a, LoginNames{});
}
