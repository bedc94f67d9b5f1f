#include "fake.h"
#include "session.h"

PERNIX_FAKE(KX_LoginKXUnit, Str<1024>, Int, In<KXUserInfoRec>, Out<KXLoginResultRec>)
PERNIX_FAKE(KX_LogoutKXUnit, Str<1024>, Int)
PERNIX_FAKE(KX_CheckLogin, Str<1024>, Int, IntOut)
PERNIX_FAKE(KX_ResetLogin, Str<1024>, Int)
PERNIX_FAKE(KX_KeepSession, Str<65>, In<KXSessionInfoRec>)
