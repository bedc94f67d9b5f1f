// The simulator's result codes.  They lie in their own range, apart from every
// code the bridge makes itself (256, 258, 2817, 65535, -1), so a Java caller
// can always tell who answered.  sim/README.md lists them with their meaning.
#pragma once

namespace sim {

enum Code : int {
  kOk = 0,
  kUnknownUnit = 12289,      // no registered unit has that name
  kNotLoggedIn = 12290,      // the session token is unknown or logged out
  kSessionExpired = 12291,   // the session timed out
  kBadParameter = 12292,     // an argument is out of range or malformed
  kExists = 12293,           // the object to create exists already
  kNoSuchObject = 12294,     // the object named does not exist
  kCapacity = 12295,         // no room: drives, LUs, table slots
  kBusy = 12296,             // the object is in use or in a state that forbids it
  kDbError = 12297,          // the database failed in another way
  kPermission = 12298,       // the session's role may not do this
  kAuthFailed = 12299,       // wrong user name or password
  kDbLocked = 12300,         // the database stayed locked past the busy timeout
  kDbReadOnly = 12301,       // the database cannot be written
  kDbCorrupt = 12302,        // the file is not a (sound) simulator database
  kNotModeled = 12303,       // the simulator does not model this function yet
  kFileError = 12304,        // a file named by a path cannot be read or written
  kBadFile = 12305,          // a file read is malformed
  kUnreachable = 12306,      // the unit's address answers no simulated array
  kDbMissing = 12307,        // the database's folder does not exist
  kTooManySessions = 12308,  // the account has no free session slot
};

// One line a code, for the tool and the README.
const char* describe(int code);

}  // namespace sim
