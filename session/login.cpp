// Unit login, logout, login state and session keep-alive.
#include "session/records.h"

using namespace kx;

KX_NATIVE(jobjectArray, LoginKXUnit, jstring unit, jint mode, jobject user) {
  std::fflush(stdout);
  if (unit == nullptr) {
    errorThrow(env, kNullArgument);
    return nullptr;
  }
  auto name = Chars<PERNIX_PATH_SIZE>(unit);
  name.prepare(env);
  ScrubbedRecord<KXUserInfoBlock> credentials;
  make_KXUserInfo(env, user, &credentials->info);
  KXLoginResultRec answer{};

  int rc = KX_LoginKXUnit(name.arg(), mode, &credentials->info, &answer);
  if (rc != kOk) {
    errorThrow(env, rc);
    return nullptr;
  }
  // An empty first string means there is nothing to return.
  if (answer.first[0] == '\0') {
    std::fflush(stdout);
    return nullptr;
  }
  int code = kOk;
  jobjectArray names = string_array(
      env, {{answer.first, sizeof answer.first}, {answer.second, sizeof answer.second}}, code);
  if (code != kOk) {
    errorThrow(env, code);
    return nullptr;
  }
  std::fflush(stdout);
  return names;
}

KX_NATIVE(void, LogoutKXUnit, jstring unit, jint mode) {
  call(env, KX_LogoutKXUnit, Chars<PERNIX_PATH_SIZE>(unit), mode);
}

KX_NATIVE(jint, CheckLogin, jstring unit, jint mode) {
  return call(env, KX_CheckLogin, Chars<PERNIX_PATH_SIZE>(unit), mode, IntOut{});
}

KX_NATIVE(void, ResetLogin, jstring unit, jint mode) {
  call(env, KX_ResetLogin, Chars<PERNIX_PATH_SIZE>(unit), mode);
}

KX_NATIVE(void, KeepSession, jstring unit, jobject session) {
  call(env, KX_KeepSession, Unit(unit), Session(session));
}
