// Physical drives: identity, status, rebuild progress, power saving, and the
// drive-related settings of the unit.
#include "raid/records.h"

using namespace kx;

namespace {
constexpr jsize kDrives = 450;  // drive slots of a unit
}  // namespace

KX_NATIVE(jobject, GetDriveInformation, jstring unit, jobject session, jint a, jint b) {
  return call(env, KX_GetDriveInformation, Unit(unit), Session(session), a, b,
              Out(rec::DiskDriveInformation));
}

// Every slot is converted in order; the first drive that cannot be built ends
// the list quietly, later elements staying null.
KX_NATIVE(jobjectArray, GetDriveInformationAll, jstring unit, jobject session) {
  return call(env, KX_GetDriveInformationAll, Unit(unit), Session(session),
              OutList(rec::DiskDriveInformation, kDrives, ListEnd::Stop));
}

// Neither tests the unit name (a null one goes as an empty name) nor flushes;
// a slot that cannot be built stays null and the list goes on, never 2817.
KX_NATIVE(jobjectArray, GetDriveStatus, jstring unit, jobject session) {
  return call(env, kNoFlush, KX_GetDriveStatus, UnitUnchecked(unit), Session(session),
              OutList(rec::DiskDrive, kDrives, ListEnd::Skip));
}

KX_NATIVE(jobject, DriveReconstructInformation, jstring unit, jobject session, jint a, jint b) {
  return call(env, KX_DriveReconstructInformation, Unit(unit), Session(session), a, b,
              Out(rec::DriveReconstructInformation));
}

KX_NATIVE(jobject, GetDiskDriveRestoration, jstring unit, jobject session) {
  return call(env, KX_GetDiskDriveRestoration, Unit(unit), Session(session),
              Out(rec::DiskDriveRestoration));
}

KX_NATIVE(void, SetDiskDriveRestoration, jstring unit, jobject session, jobject restoration) {
  call(env, KX_SetDiskDriveRestoration, Unit(unit), Session(session),
       In(restoration, rec::DiskDriveRestoration));
}

KX_NATIVE(jobject, GetSATADriveInformation, jstring unit, jobject session) {
  return call(env, KX_GetSATADriveInformation, Unit(unit), Session(session),
              Out(rec::SATADriveInformation));
}

KX_NATIVE(void, SetSATADriveInformation, jstring unit, jobject session, jobject info) {
  call(env, KX_SetSATADriveInformation, Unit(unit), Session(session),
       In(info, rec::SATADriveInformation));
}

KX_NATIVE(jobject, GetSATADriveRestoration, jstring unit, jobject session) {
  return call(env, KX_GetSATADriveRestoration, Unit(unit), Session(session),
              Out(rec::SATADriveRestoration));
}

KX_NATIVE(void, SetSATADriveRestoration, jstring unit, jobject session, jobject restoration) {
  call(env, KX_SetSATADriveRestoration, Unit(unit), Session(session),
       In(restoration, rec::SATADriveRestoration));
}

KX_NATIVE(jobject, GetDriveResponseDiag, jstring unit, jobject session) {
  return call(env, KX_GetDriveResponseDiag, Unit(unit), Session(session),
              Out(rec::DriveResponseDiag));
}

KX_NATIVE(void, SetDriveResponseDiag, jstring unit, jobject session, jobject diag) {
  call(env, KX_SetDriveResponseDiag, Unit(unit), Session(session),
       In(diag, rec::DriveResponseDiag));
}

KX_NATIVE(void, SetDriveMode, jstring unit, jobject session, jint a, jint b, jint c) {
  call(env, KX_SetDriveMode, Unit(unit), Session(session), a, b, c);
}

KX_NATIVE(jobject, GetSpinDownUpInformation, jstring unit, jobject session) {
  return call(env, KX_GetSpinDownUpInformation, Unit(unit), Session(session),
              Out(rec::SpinDownUpInformation));
}

KX_NATIVE(void, SpinDownDriveByRG, jstring unit, jobject session, jint rgnum) {
  call(env, KX_SpinDownDriveByRG, Unit(unit), Session(session), rgnum);
}

KX_NATIVE(void, SpinUpDriveByRG, jstring unit, jobject session, jint rgnum) {
  call(env, KX_SpinUpDriveByRG, Unit(unit), Session(session), rgnum);
}
