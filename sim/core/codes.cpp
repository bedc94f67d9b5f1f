#include "sim/core/codes.h"

namespace sim {

const char* describe(int code) {
  switch (code) {
    case kOk: return "success";
    case kUnknownUnit: return "no registered unit has that name";
    case kNotLoggedIn: return "the session is unknown or logged out";
    case kSessionExpired: return "the session has expired";
    case kBadParameter: return "an argument is out of range or malformed";
    case kExists: return "the object exists already";
    case kNoSuchObject: return "no such object";
    case kCapacity: return "no room left (drives, capacity or table slots)";
    case kBusy: return "the object is in use or in a state that forbids this";
    case kDbError: return "the simulator's database failed";
    case kPermission: return "the account's role does not grant this";
    case kAuthFailed: return "wrong user name or password";
    case kDbLocked: return "the database stayed locked past the busy timeout";
    case kDbReadOnly: return "the database cannot be written";
    case kDbCorrupt: return "the file is not a sound simulator database";
    case kNotModeled: return "the simulator does not model this function";
    case kFileError: return "a file named by a path cannot be read or written";
    case kBadFile: return "a file read is malformed";
    case kUnreachable: return "no simulated array answers at the unit's addresses";
    case kDbMissing: return "the database's folder does not exist";
    case kTooManySessions: return "the account has no free session";
    default: return "not a simulator code";
  }
}

}  // namespace sim
