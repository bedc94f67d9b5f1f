// The file-based user table, the user LAN settings, the audit log and the
// import of a Fibre Channel permission list.
#include <algorithm>

#include "account/records.h"

using namespace kx;

namespace {

// The number of permissions an import found, in the native's own frame.
struct ImportCount {
  int value = 0;
  bool prepare(JNIEnv*) { return true; }
  int* arg() { return &value; }
};

// The permission table an import fills, returned as an array of exactly as
// many elements as the library counted.  Only the 128 the table holds are
// converted; elements past them stay null, as does any element that cannot
// be built.  A negative count cannot make an array: the JVM's
// NegativeArraySizeException reaches the caller.
struct ImportedPermissions {
  explicit ImportedPermissions(const int& n) : count(n) {}

  const int& count;
  Records<FibreInformationPermissionRec> table;
  using result_type = jobjectArray;

  bool prepare(JNIEnv*) {
    table = Records<FibreInformationPermissionRec>(PERNIX_MAX_PERMISSIONS);
    return static_cast<bool>(table);
  }
  FibreInformationPermissionRec* arg() { return table.get(); }
  jobjectArray convert(JNIEnv* env, int&) {
    LocalRef<jobjectArray> arr(env, new_object_array(env, rec::FibreInformationPermission.cls, count));
    if (!arr) return nullptr;
    for (int i = 0; i < std::min(count, static_cast<int>(PERNIX_MAX_PERMISSIONS)); ++i) {
      LocalRef<jobject> item(
          env, make_java_FibreInformationPermission(env, &table[static_cast<size_t>(i)]));
      if (pending(env)) break;
      if (item) env->SetObjectArrayElement(arr.get(), i, item.get());
    }
    return arr.release();
  }
};

}  // namespace

// ---- the file-based user table

KX_NATIVE(jobject, GetUserInformation, jstring path, jint a) {
  return call(env, KX_GetUserInformation, Path(path), a, Out(rec::KXUserRegist));
}

KX_NATIVE(void, RegistUser, jstring path, jint a, jobject user) {
  call(env, KX_RegistUser, Path(path), a, Secret(user, rec::KXUserInfo));
}

KX_NATIVE(void, ChangeUser, jstring path, jint a, jobject old_user, jobject new_user) {
  call(env, KX_ChangeUser, Path(path), a, Secret(old_user, rec::KXUserInfo),
       Secret(new_user, rec::KXUserInfo));
}

KX_NATIVE(void, DeleteUser, jstring path, jint a, jobject user) {
  call(env, KX_DeleteUser, Path(path), a, Secret(user, rec::KXUserInfo));
}

KX_NATIVE(void, DeleteAllUser, jstring path, jint a) {
  call(env, KX_DeleteAllUser, Path(path), a);
}

KX_NATIVE(void, PasswdChange, jstring path) {
  call(env, KX_PasswdChange, Path(path));
}

// The String's own characters go to the library, unbounded.  A null String
// reports 258 and answers -1; characters that cannot be had answer 2817
// without a report.  The library's -1 is answered as it is; any other
// non-zero result is reported and answered.
KX_NATIVE(jint, PasswdCheck, jstring text) {
  std::fflush(stdout);
  if (text == nullptr) {
    errorThrow(env, kNullArgument);
    return -1;
  }
  UtfChars chars(env, text);
  if (!chars) return kMarshal;
  int rc = KX_PasswdCheck(chars.get());
  if (rc != kOk && rc != -1) errorThrow(env, rc);
  std::fflush(stdout);
  return rc;
}

// ---- user LAN settings

KX_SESSION_GETTER(GetKXUserLANInformation, KXUserLANInformation)

KX_SESSION_SETTER(SetKXUserLANInformation, KXUserLANInformation)

KX_NATIVE(jobject, LoadKXUserLANInformation, jstring unit, jobject session, jstring path) {
  return call(env, KX_LoadKXUserLANInformation, Unit(unit), Session(session), Path(path),
              Out(rec::KXUserLANInformation));
}

// ---- audit log

KX_SESSION_GETTER(GetKXAuditLogInformation, KXAuditLogInformation)

KX_SESSION_SETTER(SetKXAuditLogInformation, KXAuditLogInformation)

KX_NATIVE(void, KXAuditLogExport, jstring unit, jobject session, jstring path) {
  call(env, KX_KXAuditLogExport, Unit(unit), Session(session), Path(path));
}

KX_SESSION_SETTER(InitKXAuditLog, KXAuditLogInit)

// ---- Fibre Channel permission import: no session, no null test (a null
// unit or path goes as an empty string), no flush

KX_NATIVE(jobjectArray, FibreInfoPermissionImport, jstring unit, jstring path, jint a, jint b) {
  ImportCount count;
  return call(env, kNoFlush, KX_FibreInfoPermissionImport, UnitUnchecked(unit),
              CharsUnchecked<PERNIX_PATH_SIZE>(path), a, b, count, ImportedPermissions{count.value});
}
