// Logical units: list and read, create, expand, delete, invalidate, restore,
// re-allocate, change staging and owning controller; block-to-byte conversion.
#include "raid/records.h"

using namespace kx;

// Every one of the 4096 slots, used ones told by lu_valid; an element that
// cannot be built ends the list quietly, the rest of the array staying null.
KX_NATIVE(jobjectArray, GetLogicalUnit, jstring unit, jobject session) {
  return call(env, KX_GetLogicalUnit, Unit(unit), Session(session),
              OutList(rec::LogicalUnit, PERNIX_LOGICAL_UNITS));
}

KX_NATIVE(jobject, GetLogicalUnit1, jstring unit, jobject session, jint lun) {
  return call(env, KX_GetLogicalUnit1, Unit(unit), Session(session), lun, Out(rec::LogicalUnit));
}

// The LU number the library stores; 0 after a reported failure.
KX_NATIVE(jint, GetLastLogicalUnit, jstring unit) {
  return call(env, KX_GetLastLogicalUnit, Unit(unit), IntOut{});
}

KX_SESSION_SETTER(LogicalUnitAdd, LogicalUnit)

KX_NATIVE(void, LogicalUnitDelete, jstring unit) {
  call(env, KX_LogicalUnitDelete, Unit(unit));
}

KX_NATIVE(void, LogicalUnitDeleteAll, jstring unit) {
  call(env, KX_LogicalUnitDeleteAll, Unit(unit));
}

KX_NATIVE(void, LogicalUnitDeleteByLUN, jstring unit, jobject session, jint lun) {
  call(env, KX_LogicalUnitDeleteByLUN, Unit(unit), Session(session), lun);
}

KX_NATIVE(void, LogicalUnitExpand, jstring unit, jint a, jint b) {
  call(env, KX_LogicalUnitExpand, Unit(unit), a, b);
}

KX_NATIVE(void, LogicalUnitChangeStaging, jstring unit, jobject session, jint a, jint b) {
  call(env, KX_LogicalUnitChangeStaging, Unit(unit), Session(session), a, b);
}

KX_NATIVE(void, LogicalUnitChangeCtl, jstring unit, jobject session, jint a) {
  call(env, KX_LogicalUnitChangeCtl, Unit(unit), Session(session), a);
}

KX_NATIVE(void, LogicalUnitInvalid, jstring unit, jint lun) {
  call(env, KX_LogicalUnitInvalid, Unit(unit), lun);
}

KX_NATIVE(void, LogicalUnitRestore, jstring unit, jint lun) {
  call(env, KX_LogicalUnitRestore, Unit(unit), lun);
}

KX_NATIVE(void, LogicalUnitRealloc, jstring unit, jobject info) {
  call(env, KX_LogicalUnitRealloc, Unit(unit), In(info, rec::LUReallocInfo));
}

// A pure conversion by the library: no unit name, three ints in, the three
// ints it writes back returned as int[3] in output order.
KX_NATIVE(jintArray, BlockToByte, jint a, jint b, jint c) {
  std::fflush(stdout);
  jint out[3] = {};
  int rc = KX_BlockToByte(a, b, c, &out[0], &out[1], &out[2]);
  if (rc != kOk) {
    errorThrow(env, rc);
    return nullptr;
  }
  LocalRef<jintArray> arr(env, env->NewIntArray(3));
  if (!arr) {
    errorThrow(env, kMarshal);
    return nullptr;
  }
  env->SetIntArrayRegion(arr.get(), 0, 3, out);
  if (pending(env)) {
    errorThrow(env, kMarshal);
    return nullptr;
  }
  std::fflush(stdout);
  return arr.release();
}
