// Unit identity and the calls that act on a unit or the management
// environment as a whole.
#include <cstring>

#include "session/records.h"

using namespace kx;

namespace {

// An N-byte text buffer the library fills, returned to Java as a String; 2817
// when the String cannot be made.
template <size_t N>
struct TextOut {
  char buf[N] = {};
  using result_type = jstring;

  bool prepare(JNIEnv*) { return true; }
  char* arg() { return buf; }
  jstring convert(JNIEnv* env, int& code) {
    // A buffer filled to its last byte is cut there rather than read past.
    char text[N + 1];
    size_t len = strnlen(buf, N);
    std::memcpy(text, buf, len);
    text[len] = '\0';
    jstring str = pending(env) ? nullptr : env->NewStringUTF(text);
    if (str == nullptr) code = kMarshal;
    return str;
  }
};

}  // namespace

KX_NATIVE(jobject, GetUnitIdentifier, jstring unit) {
  return call(env, KX_GetUnitIdentifier, Unit(unit), Out(rec::UnitIdentifier));
}

KX_NATIVE(void, SetUnitIdentifier, jstring unit, jobject id) {
  call(env, KX_SetUnitIdentifier, Unit(unit), In(id, rec::UnitIdentifier));
}

KX_NATIVE(void, UnitReboot, jstring unit, jobject session) {
  call(env, KX_UnitReboot, Chars<PERNIX_PATH_SIZE>(unit), Session(session));
}

KX_NATIVE(void, TestUnitReady, jstring unit, jint value) {
  call(env, KX_TestUnitReady, Unit(unit), value);
}

KX_NATIVE(void, GUIInitialize, jobject init) {
  call(env, KX_GUIInitialize, In(init, rec::GUIInitialize));
}

KX_NATIVE(void, EnvironmentCheck) {
  call(env, KX_EnvironmentCheck);
}

KX_NATIVE(void, JavaVersionCheck, jstring version) {
  call(env, KX_JavaVersionCheck, Chars<PERNIX_PATH_SIZE>(version));
}

KX_NATIVE(void, RgLuFileOutput, jstring unit, jstring path) {
  call(env, KX_RgLuFileOutput, Unit(unit), Path(path));
}

KX_NATIVE(jstring, ModifyInfo, jstring name, jint value) {
  return call(env, KX_ModifyInfo, Chars<PERNIX_PATH_SIZE>(name), value,
              TextOut<PERNIX_MODIFY_INFO_SIZE>{});
}

// The library's three revision strings, in order; an element whose String
// cannot be made stays null.
KX_NATIVE(jobjectArray, APIRevision) {
  std::fflush(stdout);
  char first[PERNIX_REVISION_SIZE] = {};
  char second[PERNIX_REVISION2_SIZE] = {};
  char third[PERNIX_REVISION3_SIZE] = {};
  int rc = KX_APIRevision(first, second, third);
  if (rc != kOk) {
    errorThrow(env, rc);
    return nullptr;
  }
  int code = kOk;
  jobjectArray revisions = string_array(
      env, {{first, sizeof first}, {second, sizeof second}, {third, sizeof third}}, code);
  if (code != kOk) {
    errorThrow(env, code);
    return nullptr;
  }
  std::fflush(stdout);
  return revisions;
}
