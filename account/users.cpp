// The file-based user table, the user LAN settings, the audit log and the
// import of a Fibre Channel permission list.
#include "account/records.h"

using namespace kx;

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
// unit or path goes as an empty string), no flush.  The array has as many
// elements as the library counted, at most the table's 128 (a negative count
// is 2817); an element that cannot be built stays null and the rest go on.

KX_NATIVE(jobjectArray, FibreInfoPermissionImport, jstring unit, jstring path, jint a, jint b) {
  Count count;
  return call(env, kNoFlush, KX_FibreInfoPermissionImport, UnitUnchecked(unit),
              CharsUnchecked<PERNIX_PATH_SIZE>(path), a, b, count,
              CountedList<FibreInformationPermissionRec, PERNIX_MAX_PERMISSIONS, TableIn::Block>(
                  rec::FibreInformationPermission, count, ListEnd::Skip));
}
