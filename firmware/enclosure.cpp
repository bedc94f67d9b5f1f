// Enclosure microcode (joining, download, replacement, revisions and progress)
// and the boot options of the controllers.
#include "firmware/records.h"

using namespace kx;

namespace {

// The enclosure image natives make the session record before they look at
// the path: a null path is refused only then (the record is released all the
// same).
struct LatePathText : Text<PERNIX_PATH_SIZE, false> {
  bool missing_after_prepare() const { return str == nullptr; }
};
LatePathText LatePath(jstring s) { return {{s}}; }

}  // namespace

KX_NATIVE(void, ENCMicroFileConcat, jstring unit, jobject session, jstring path) {
  call(env, KX_ENCMicroFileConcat, Unit(unit), Session(session), LatePath(path));
}

KX_NATIVE(void, ENCMicroFileConcatEx, jstring unit, jobject session, jstring path, jint value) {
  call(env, KX_ENCMicroFileConcatEx, Unit(unit), Session(session), LatePath(path), value);
}

KX_NATIVE(void, CancelENCMicroFileConcat) {
  call(env, KX_CancelENCMicroFileConcat);
}

KX_NATIVE(jint, GetENCMicroDownloadCount, jstring unit, jobject session) {
  return call(env, KX_GetENCMicroDownloadCount, Unit(unit), Session(session), IntOut{});
}

KX_NATIVE(jint, ENCMicroDownload, jstring unit, jobject session, jint a, jint b) {
  return call(env, KX_ENCMicroDownload, Unit(unit), Session(session), a, b, IntOut{});
}

KX_NATIVE(void, ENCMicroReplace, jstring unit, jobject session, jint value) {
  call(env, KX_ENCMicroReplace, Unit(unit), Session(session), value);
}

KX_NATIVE(jobject, GetENCMicroInformation) {
  return call(env, KX_GetENCMicroInformation, Out(rec::ENCMicroInformation));
}

KX_SESSION_GETTER(GetENCMicroInformationEx, ENCMicroInformation)

KX_SESSION_GETTER(GetENCStatusList, ENCStatusList)

KX_SESSION_GETTER(GetENCDownloadOption, ENCDownloadOption)

KX_SESSION_SETTER(SetENCDownloadOption, ENCDownloadOption)

KX_SESSION_GETTER(GetBootOption, BootOption)

KX_SESSION_SETTER(SetBootOption, BootOption)

KX_SESSION_SETTER(TestBootOption, BootOption)

KX_NATIVE(void, BootOptionExport, jstring unit, jobject session, jstring path) {
  call(env, KX_BootOptionExport, Unit(unit), Session(session), Path(path));
}

KX_NATIVE(void, BootOptionImport, jstring unit, jobject session, jstring path) {
  call(env, KX_BootOptionImport, Unit(unit), Session(session), Path(path));
}
