// Fibre Channel ports: port information and LUN security per controller, the
// older WWN permission table, WWN-to-host-group assignment, port options and
// target IDs read, written or imported from files.
#include "host/records.h"
#include "raid/records.h"

using namespace kx;

namespace {

// One record per controller, filled by the library into one block and
// returned as a two-element array.  An element that cannot be built ends the
// array quietly (no report, later slot null); failing to make the array
// answers null without a report.
template <typename R>
struct ControllerPair : OutList<R> {
  explicit ControllerPair(const Desc<R>& d) : OutList<R>(d, 2, ListEnd::Stop) {}
};

// The second controller's record: the second half of the pair's block.
template <typename R>
struct SecondController {
  const ControllerPair<R>& pair;
  bool prepare(JNIEnv*) { return true; }
  R* arg() { return &pair.rec[1]; }
};

}  // namespace

// ---- port information and LUN security

KX_NATIVE(jobjectArray, GetFibreInformation, jstring unit, jobject session) {
  ControllerPair<FibreInformationRec> ctl(rec::FibreInformation);
  return call(env, KX_GetFibreInformation, Unit(unit), Session(session), ctl,
              SecondController<FibreInformationRec>{ctl});
}

KX_NATIVE(void, SetFibreInformation, jstring unit, jobject session, jobject ctl0, jobject ctl1) {
  call(env, KX_SetFibreInformation, Unit(unit), Session(session), In(ctl0, rec::FibreInformation),
       In(ctl1, rec::FibreInformation));
}

// ---- the older WWN permission table: no session

KX_NATIVE(jobject, GetWWNInformation, jstring unit) {
  return call(env, KX_GetWWNInformation, Unit(unit), Out(rec::WWNInformation));
}

KX_NATIVE(void, SetWWNInformation, jstring unit, jobject info) {
  call(env, KX_SetWWNInformation, Unit(unit), In(info, rec::WWNInformation));
}

// ---- WWN to host group, port options

KX_SESSION_GETTER(GetWWNHGInformation, WWNHGInformation)

KX_SESSION_SETTER(SetWWNHGInformation, WWNHGInformation)

KX_SESSION_GETTER(GetPortOption, PortOption)

KX_SESSION_SETTER(SetPortOption, PortOption)

// ---- target IDs: no session

KX_NATIVE(jobjectArray, GetTargetId, jstring unit, jint a) {
  ControllerPair<TargetIdRec> ctl(rec::TargetId);
  return call(env, KX_GetTargetId, Unit(unit), a, ctl, SecondController<TargetIdRec>{ctl});
}

// The second int follows the record.
KX_NATIVE(void, SetTargetId, jstring unit, jint a, jobject target, jint b) {
  call(env, KX_SetTargetId, Unit(unit), a, In(target, rec::TargetId), b);
}

// A null file name is refused like a null unit name, before anything is copied.
KX_NATIVE(jobjectArray, TargetIdImport, jstring unit, jstring file) {
  ControllerPair<TargetIdRec> ctl(rec::TargetId);
  return call(env, KX_TargetIdImport, Unit(unit), Path(file), ctl, SecondController<TargetIdRec>{ctl});
}

KX_NATIVE(jobjectArray, WZTargetIdImport, jstring unit, jstring file1, jstring file2, jint a) {
  ControllerPair<WZTargetIdRec> ctl(rec::WZTargetId);
  return call(env, KX_WZTargetIdImport, Unit(unit), Path(file1), Path(file2), a, ctl,
              SecondController<WZTargetIdRec>{ctl});
}
