// Formatting of logical units (one at a time, by list, quick format) and
// parity correction: starting them and following their progress.
#include "raid/records.h"

using namespace kx;

namespace {

// The LU format status list answers a record it cannot build with null and
// reports nothing.
template <typename R>
struct QuietOut : Out<R> {
  using Out<R>::Out;
  jobject convert(JNIEnv* env, int&) { return write_record(env, this->desc, this->rec.get()); }
};

}  // namespace

KX_NATIVE(void, LogicalUnitFormat, jstring unit, jint a, jint b) {
  call(env, KX_LogicalUnitFormat, Unit(unit), a, b);
}

KX_NATIVE(jint, LogicalUnitFormatStatus, jstring unit, jint lun) {
  return call(env, KX_LogicalUnitFormatStatus, Unit(unit), lun, IntOut{});
}

KX_NATIVE(jint, LogicalUnitFormatImmediateCTL, jstring unit, jint a, jint b) {
  return call(env, KX_LogicalUnitFormatImmediateCTL, Unit(unit), a, b, IntOut{});
}

// Neither tests the unit name (a null one goes as an empty name) nor flushes.
KX_NATIVE(jobject, LogicalUnitFormatStatusList, jstring unit) {
  return call(env, kNoFlush, KX_LogicalUnitFormatStatusList, UnitUnchecked(unit),
              QuietOut<LuFormatStatusListRec>(rec::LuFormatStatusList));
}

KX_NATIVE(void, EntryFormatList, jstring unit, jobject list) {
  call(env, KX_EntryFormatList, Unit(unit), In(list, rec::FormatList));
}

KX_NATIVE(jobject, GetFormatStatusList, jstring unit) {
  return call(env, KX_GetFormatStatusList, Unit(unit), Out(rec::FormatStatusList));
}

KX_NATIVE(jobject, GetQuickFormatOption, jstring unit, jobject session) {
  return call(env, KX_GetQuickFormatOption, Unit(unit), Session(session),
              Out(rec::QuickFormatOption));
}

KX_NATIVE(void, SetQuickFormatOption, jstring unit, jobject session, jobject option) {
  call(env, KX_SetQuickFormatOption, Unit(unit), Session(session),
       In(option, rec::QuickFormatOption));
}

KX_NATIVE(void, EntryQuickFormatList, jstring unit, jobject session, jobject list) {
  call(env, KX_EntryQuickFormatList, Unit(unit), Session(session), In(list, rec::QuickFormatList));
}

KX_NATIVE(jobject, GetQuickFormatStatusList, jstring unit, jobject session) {
  return call(env, KX_GetQuickFormatStatusList, Unit(unit), Session(session),
              Out(rec::QuickFormatStatusList));
}

KX_NATIVE(void, EntryParityCorrectionList, jstring unit, jobject session, jobject list) {
  call(env, KX_EntryParityCorrectionList, Unit(unit), Session(session),
       In(list, rec::ParityCorrectionList));
}

KX_NATIVE(jobject, GetParityCorrectionStatusList, jstring unit, jobject session) {
  return call(env, KX_GetParityCorrectionStatusList, Unit(unit), Session(session),
              Out(rec::ParityCorrectionStatusList));
}
