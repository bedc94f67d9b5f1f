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

KX_SESSION_GETTER(GetQuickFormatOption, QuickFormatOption)

KX_SESSION_SETTER(SetQuickFormatOption, QuickFormatOption)

KX_SESSION_SETTER(EntryQuickFormatList, QuickFormatList)

KX_SESSION_GETTER(GetQuickFormatStatusList, QuickFormatStatusList)

KX_SESSION_SETTER(EntryParityCorrectionList, ParityCorrectionList)

KX_SESSION_GETTER(GetParityCorrectionStatusList, ParityCorrectionStatusList)
