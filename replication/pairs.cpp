// Copy pairs inside the array and to a remote one, coupled LUs, command
// devices, differential-management LUs and the remote array's identity.
#include <cstring>

#include "replication/records.h"

using namespace kx;

namespace kx {

namespace {
constexpr size_t kSequenceNoLimit = 5;  // four characters and the NUL
}  // namespace

int read_sequence_no(JNIEnv* env, jobject obj, const Field& f, void* rec) {
  return jni_get_string(env, obj, f.name, static_cast<char*>(rec) + f.offset, kSequenceNoLimit);
}

int write_sequence_no(JNIEnv* env, jobject obj, const Field& f, const void* rec) {
  // A field the library filled to its last byte is cut there.
  char text[sizeof(CommandDeviceRec::sequence_no) + 1];
  const char* src = static_cast<const char*>(rec) + f.offset;
  size_t len = strnlen(src, sizeof text - 1);
  std::memcpy(text, src, len);
  text[len] = '\0';
  return jni_set_string(env, obj, f.name, text);
}

}  // namespace kx

KX_SESSION_GETTER(GetPairInformation, PairInfo)

KX_NATIVE(jobject, GetMirrexInformation, jstring unit) {
  return call(env, KX_GetMirrexInformation, Unit(unit), Out(rec::MirrexInformation));
}

KX_NATIVE(void, SplitMirrexPair, jstring unit, jint value) {
  call(env, KX_SplitMirrexPair, Unit(unit), value);
}

KX_SESSION_GETTER(GetFarsyncPairInformation, FarsyncPairInformation)

KX_SESSION_GETTER(GetFarsyncAsyncPairInformation, FarsyncAsyncPairInformation)

KX_SESSION_GETTER(GetFarsyncAsyncOption, FarsyncAsyncOption)

KX_SESSION_SETTER(SetFarsyncAsyncOption, FarsyncAsyncOption)

KX_SESSION_GETTER(GetCommandDevice, CommandDevice)

KX_SESSION_SETTER(SetCommandDevice, CommandDevice)

KX_NATIVE(jobject, GetDMLU, jstring unit, jobject session) {
  return call(env, KX_GetDMLU, Unit(unit), Session(session), Out(rec::DMLUInformation));
}

KX_NATIVE(void, SetDMLU, jstring unit, jobject session, jobject dmlu) {
  call(env, KX_SetDMLU, Unit(unit), Session(session), In(dmlu, rec::DMLUInformation));
}

KX_NATIVE(jobject, GetCouplingInfo, jstring unit, jobject session) {
  return call(env, KX_GetCouplingInfo, Unit(unit), Session(session), Out(rec::CouplingInfo));
}

KX_SESSION_GETTER(GetRemoteDeviceInformation, RemoteDeviceInformation)

KX_SESSION_SETTER(SetRemoteDeviceInformation, RemoteDeviceInformation)

KX_NATIVE(void, SetSvolDisableMode, jstring unit, jobject session, jint a, jint b) {
  call(env, KX_SetSvolDisableMode, Unit(unit), Session(session), a, b);
}
