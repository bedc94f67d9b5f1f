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

KX_SESSION_GETTER(GetDiskDriveRestoration, DiskDriveRestoration)

KX_SESSION_SETTER(SetDiskDriveRestoration, DiskDriveRestoration)

KX_SESSION_GETTER(GetSATADriveInformation, SATADriveInformation)

KX_SESSION_SETTER(SetSATADriveInformation, SATADriveInformation)

KX_SESSION_GETTER(GetSATADriveRestoration, SATADriveRestoration)

KX_SESSION_SETTER(SetSATADriveRestoration, SATADriveRestoration)

KX_SESSION_GETTER(GetDriveResponseDiag, DriveResponseDiag)

KX_SESSION_SETTER(SetDriveResponseDiag, DriveResponseDiag)

KX_NATIVE(void, SetDriveMode, jstring unit, jobject session, jint a, jint b, jint c) {
  call(env, KX_SetDriveMode, Unit(unit), Session(session), a, b, c);
}

KX_SESSION_GETTER(GetSpinDownUpInformation, SpinDownUpInformation)

KX_NATIVE(void, SpinDownDriveByRG, jstring unit, jobject session, jint rgnum) {
  call(env, KX_SpinDownDriveByRG, Unit(unit), Session(session), rgnum);
}

KX_NATIVE(void, SpinUpDriveByRG, jstring unit, jobject session, jint rgnum) {
  call(env, KX_SpinUpDriveByRG, Unit(unit), Session(session), rgnum);
}
