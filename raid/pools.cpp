// Data pools and their LUs, virtual volumes, unified LUs made by joining a
// parent LU with child LUs, the label list, and the export and import of a
// unit's RAID group and LU configuration.
#include "raid/records.h"
#include "raid/table_kinds.h"

using namespace kx;

KX_SESSION_GETTER(GetPoolInformation, PoolInfo)

KX_SESSION_SETTER(ChangePoolInformation, ChgPoolInfo)

KX_NATIVE(void, PoolLUAdd, jstring unit, jobject session, jint a, jint b, jint c) {
  call(env, KX_PoolLUAdd, Unit(unit), Session(session), a, b, c);
}

KX_NATIVE(void, PoolLUAddList, jstring unit, jobject session, jint a, jint b, jobject list) {
  call(env, KX_PoolLUAddList, Unit(unit), Session(session), a, b, In(list, rec::PoolLuAddList));
}

KX_NATIVE(void, PoolLUAllDelete, jstring unit, jobject session, jint a, jint b) {
  call(env, KX_PoolLUAllDelete, Unit(unit), Session(session), a, b);
}

KX_NATIVE(void, CreateVVOL, jstring unit, jobject session, jint a, jint b, jint c) {
  call(env, KX_CreateVVOL, Unit(unit), Session(session), a, b, c);
}

KX_NATIVE(void, DeleteVVOL, jstring unit, jobject session, jint a, jint b) {
  call(env, KX_DeleteVVOL, Unit(unit), Session(session), a, b);
}

KX_SESSION_SETTER(SetIntegrationLU, IntegrationLUSet)

// The one unified-LU report without a session: 512 unified LUs of 512
// children, about a megabyte of record.
KX_NATIVE(jobject, IntegrationLUInfo, jstring unit) {
  return call(env, KX_IntegrationLUInfo, Unit(unit), Out(rec::IntegrationLUInfo));
}

KX_SESSION_GETTER(IntegrationLUInfo2, IntegrationLUInfo2)

KX_SESSION_GETTER(GetIntegrationPinInfo, PINInformation)

// The label lists take no unit: the library fills a table in this frame and
// says how many entries it holds.  The array has that many elements, at most
// the table's 20 or 64 (a negative count is 2817); an element that cannot be
// built ends the filling quietly.
KX_NATIVE(jobjectArray, GetLabelList) {
  Count count;
  return call(env, KX_GetLabelList, CountedList<KXLabelRec, PERNIX_LABELS>(rec::KXLabel, count), count);
}

KX_NATIVE(jobjectArray, GetLabelList2) {
  Count count;
  return call(env, KX_GetLabelList2, CountedList<KXLabelRec, PERNIX_LABELS2>(rec::KXLabel, count), count);
}

KX_NATIVE(void, RaidLuExport, jstring unit, jobject session, jstring path) {
  call(env, KX_RaidLuExport, Unit(unit), Session(session), Path(path));
}

KX_NATIVE(jobject, RaidLuImportEx, jstring unit, jobject session, jstring path) {
  return call(env, KX_RaidLuImportEx, Unit(unit), Session(session), Path(path),
              Out(rec::RaidLUInformation));
}

// The older import: the 90 RAID groups and the 4096 LUs the library reads from
// the file, returned as one Object[4186], groups first.  Unlike the RAID group
// and LU lists, an element that cannot be built is reported (2817).
KX_NATIVE(jobjectArray, RaidLuImport, jstring unit, jstring path) {
  Table groups(rec::RaidGroup, PERNIX_RAID_GROUPS);
  return call(env, KX_RaidLuImport, Unit(unit), Path(path), groups,
              ObjectsWith(groups, Table(rec::LogicalUnit, PERNIX_LOGICAL_UNITS)));
}
