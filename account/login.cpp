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

KX_NATIVE(void, LogoutKXAccount, jstring unit, jobject session, jobject logout) {
  call(env, KX_LogoutKXAccount, Unit(unit), Session(session), In(logout, rec::KXAccountLogout));
}

KX_NATIVE(jobject, LoginKXAccountAlertCheck, jstring unit, jint a) {
  return call(env, KX_LoginKXAccountAlertCheck, Unit(unit), a, Out(rec::KXSessionInfo));
}

KX_NATIVE(void, LogoutKXAccountAlertCheck, jstring unit, jobject session, jobject logout) {
  call(env, KX_LogoutKXAccountAlertCheck, Unit(unit), Session(session),
       In(logout, rec::KXAccountLogout));
}

KX_NATIVE(void, ForcedLogoutKXAccount, jstring unit, jobject session, jobject info) {
  call(env, KX_ForcedLogoutKXAccount, Unit(unit), Session(session), In(info, rec::ForcedLogoutInfo));
}

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

KX_NATIVE(void, DeleteAccount, jstring unit, jobject session, jobject del) {
  call(env, KX_DeleteAccount, Unit(unit), Session(session), In(del, rec::KXAccountDelete));
}

KX_NATIVE(void, ChangeOwnUserPassword, jstring unit, jobject session, jobject pw) {
  call(env, KX_ChangeOwnUserPassword, Unit(unit), Session(session), Secret(pw, rec::OwnUserPassword));
}

KX_NATIVE(jobject, GetOwnUserPermission, jstring unit, jobject session) {
  return call(env, KX_GetOwnUserPermission, Unit(unit), Session(session), Out(rec::OwnUserPermission));
}

KX_NATIVE(jobject, GetKXAccountRoleInformation, jstring unit, jobject session) {
  return call(env, KX_GetKXAccountRoleInformation, Unit(unit), Session(session),
              Out(rec::KXAccountRoleInformation));
}

KX_NATIVE(jobject, GetAccountOption, jstring unit, jobject session) {
  return call(env, KX_GetAccountOption, Unit(unit), Session(session), Out(rec::AccountOption));
}

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
