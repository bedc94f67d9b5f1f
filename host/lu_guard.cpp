// LU guard: the access level and retention term of every LU, extending a
// retention term and the array-wide expiration lock.
#include "host/records.h"

using namespace kx;

// All 4096 LUs, used or not; one that cannot be built is reported as 2817.
KX_SESSION_GETTER(GetLuGuardInformation, LuGuardInformation)

KX_SESSION_SETTER(SetLuAccessLevel, LuAccessLevel)

KX_NATIVE(void, ExtendRetentionTerm, jstring unit, jobject session, jint a, jint b) {
  call(env, KX_ExtendRetentionTerm, Unit(unit), Session(session), a, b);
}

KX_NATIVE(void, SetExpirationLock, jstring unit, jobject session, jint a) {
  call(env, KX_SetExpirationLock, Unit(unit), Session(session), a);
}
