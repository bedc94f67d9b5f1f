// iSCSI host ports: network settings, targets and their authentication,
// registered and logged-in initiators, CHAP users and their import, the iSNS
// server and the ping test.  Records that carry a CHAP secret are cleared
// before they are released.
#include "host/records.h"

using namespace kx;

// ---- port network settings

KX_SESSION_GETTER(GetiSCSIPortInformation, KXiSCSIPortInformation)

KX_SESSION_SETTER(SetiSCSIPortInformation, KXiSCSIPortInformation)

// ---- targets; a, b and c address controller, port and target slot

KX_NATIVE(jobject, GetiSCSITargetInformationAll, jstring unit, jobject session) {
  return call(env, KX_GetiSCSITargetInformationAll, Unit(unit), Session(session),
              Out(rec::KXiSCSITargetInformationAll, true));
}

KX_NATIVE(void, CreateiSCSITarget, jstring unit, jobject session, jint a, jint b, jint c,
          jobject target) {
  call(env, KX_CreateiSCSITarget, Unit(unit), Session(session), a, b, c,
       Secret(target, rec::KXiSCSITargetInfo));
}

KX_NATIVE(void, ChangeiSCSITarget, jstring unit, jobject session, jint a, jint b, jint c,
          jobject target) {
  call(env, KX_ChangeiSCSITarget, Unit(unit), Session(session), a, b, c,
       Secret(target, rec::KXiSCSITargetInfo));
}

KX_NATIVE(void, DeleteiSCSITarget, jstring unit, jobject session, jint a, jint b, jobject list) {
  call(env, KX_DeleteiSCSITarget, Unit(unit), Session(session), a, b,
       In(list, rec::DeleteiSCSITarget));
}

KX_NATIVE(void, InitiSCSITarget, jstring unit, jobject session, jint a, jint b) {
  call(env, KX_InitiSCSITarget, Unit(unit), Session(session), a, b);
}

KX_NATIVE(void, ChangeiSCSITargetSecurity, jstring unit, jobject session, jint a, jint b, jint c) {
  call(env, KX_ChangeiSCSITargetSecurity, Unit(unit), Session(session), a, b, c);
}

// ---- initiators

KX_SESSION_GETTER(GetiSCSIInitiatorInformationAll, KXiSCSIInitiatorInformationAll)

// One whole port of the table, addressed by controller and port.
KX_NATIVE(void, SetiSCSIInitiatortInformation, jstring unit, jobject session, jint a, jint b,
          jobject port) {
  call(env, KX_SetiSCSIInitiatortInformation, Unit(unit), Session(session), a, b,
       In(port, rec::KXiSCSIInitiatorPortInfo));
}

KX_SESSION_GETTER(GetiSCSILoginInitiatorInformationAll, KXiSCSILoginInitiatorInformationAll)

// ---- CHAP users

KX_NATIVE(jobject, GetiSCSICHAPUserInformationAll, jstring unit, jobject session) {
  return call(env, KX_GetiSCSICHAPUserInformationAll, Unit(unit), Session(session),
              Out(rec::KXiSCSICHAPUserInformationAll, true));
}

KX_NATIVE(void, SetiSCSICHAPUserInformation, jstring unit, jobject session, jint a, jint b,
          jobject port) {
  call(env, KX_SetiSCSICHAPUserInformation, Unit(unit), Session(session), a, b,
       Secret(port, rec::KXiSCSICHAPUserPortInfo));
}

// A null file name is refused like a null unit name.
KX_NATIVE(void, iSCSICHAPUserImport, jstring unit, jobject session, jstring file) {
  call(env, KX_iSCSICHAPUserImport, Unit(unit), Session(session), Path(file));
}

// ---- iSNS and ping

KX_SESSION_GETTER(GetiSNSInformation, KXiSNSInformation)

KX_SESSION_SETTER(SetiSNSInformation, KXiSNSInformation)

KX_SESSION_SETTER(RequestiSCSIPing, KXiSCSIPing)

KX_NATIVE(jobject, GetiSCSIPingStatus, jstring unit, jobject session) {
  return call(env, KX_GetiSCSIPingStatus, Unit(unit), Session(session), Out(rec::KXiSCSIPing));
}
