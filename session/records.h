// Session token and unit-login credentials.
#pragma once

#include "core/native.h"
#include "session.h"

KX_RECORD(KXSessionInfo, KXSessionInfoRec,
          KX_UNCHECKED(KX_BYTES(session_id)));

KX_RECORD(KXUserInfo, KXUserInfoRec,
          KX_STRING(user),
          KX_STRING(passwd));

KX_CONVERTERS(KXSessionInfo, KXSessionInfo, KXSessionInfoRec)
KX_CONVERTERS(KXUserInfo, KXUserInfo, KXUserInfoRec)

namespace kx {
// The 32-byte session record every session-taking native hands the library.
inline In<KXSessionInfoRec> Session(jobject session) { return {session, rec::KXSessionInfo}; }
}  // namespace kx
