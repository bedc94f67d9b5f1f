/* Sessions and units: session token, unit login, unit registry, discovery,
 * unit identity and the unit condition report. */
#ifndef PERNIX_SESSION_H
#define PERNIX_SESSION_H

#include "pernix_common.h"

#pragma pack(push, 1)

/* Opaque session token handed out by the account login. */
typedef struct KXSessionInfoRec {
  uint8_t session_id[32];
} KXSessionInfoRec;
PERNIX_SIZE(KXSessionInfoRec, 32);
PERNIX_OFFSET(KXSessionInfoRec, session_id, 0);

/* Unit-login credentials: 34 bytes of data. */
typedef struct KXUserInfoRec {
  char user[17];
  char passwd[17];
} KXUserInfoRec;
PERNIX_SIZE(KXUserInfoRec, 34);
PERNIX_OFFSET(KXUserInfoRec, user, 0);
PERNIX_OFFSET(KXUserInfoRec, passwd, 17);

/* The unit login hands the credentials over in a 36-byte block. */
typedef struct KXUserInfoBlock {
  KXUserInfoRec info;
  uint8_t reserved[2];
} KXUserInfoBlock;
PERNIX_SIZE(KXUserInfoBlock, 36);

/* What the unit login answers: two strings in a 36-byte block. */
typedef struct KXLoginResultRec {
  char first[17];
  char second[17];
  uint8_t reserved[2];
} KXLoginResultRec;
PERNIX_SIZE(KXLoginResultRec, 36);
PERNIX_OFFSET(KXLoginResultRec, first, 0);
PERNIX_OFFSET(KXLoginResultRec, second, 17);

#pragma pack(pop)

PERNIX_BEGIN_DECLS

int KX_LoginKXUnit(const char* unit, int mode, const KXUserInfoRec* user, KXLoginResultRec* result);
int KX_LogoutKXUnit(const char* unit, int mode);
int KX_CheckLogin(const char* unit, int mode, int* state);
int KX_ResetLogin(const char* unit, int mode);
int KX_KeepSession(const char* unit, const KXSessionInfoRec* session);

PERNIX_END_DECLS

#endif
