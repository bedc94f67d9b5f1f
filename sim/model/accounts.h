// Roles, accounts, sessions and unit logins: the model operations the session
// and account families share.  Passwords are kept only as argon2id hashes
// (libsodium's crypto_pwhash_str); every plain copy the simulator makes lives
// in a Secret, which wipes it when it goes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "sim/core/store.h"

namespace sim {

constexpr int kMaxAccounts = 21;          // the account table of the record
constexpr int kMaxRoles = 32;             // the role table of the record
constexpr int kSessionsPerAccount = 8;    // live account sessions of one account
constexpr int kMaxPasswordLength = 256;
constexpr int64_t kExpiredKept = 86400;   // an expired session is remembered a day

// Session kinds (sessions.kind).
enum SessionKind { kAccountSession = 0, kAlertCheckSession = 1 };

// A password (or another secret) copied out of an untrusted buffer of cap
// bytes; kBadParameter as in_text.  The copy is wiped on destruction.
class Secret {
 public:
  Secret(const char* p, size_t cap, const char* what);
  Secret(const Secret&) = delete;
  Secret& operator=(const Secret&) = delete;
  ~Secret();
  const std::string& str() const { return s_; }
  size_t size() const { return s_.size(); }

 private:
  std::string s_;
};

// An argon2id hash string of the password, salted at random.
std::string hash_password(const std::string& password);
bool verify_password(const std::string& hash, const std::string& password);

// The account options kept in meta.
int64_t session_timeout(Db& db);
int password_min_length(Db& db);
int keep_alive_time(Db& db);

// A password acceptable as a new one: length within min..max and no control
// characters; kBadParameter otherwise.
void check_new_password(Db& db, const std::string& password, size_t max = kMaxPasswordLength);

// Forgets sessions and unit logins that expired more than kExpiredKept ago
// (a caller of a recently expired one still hears "expired").
void purge_sessions(Db& db, int64_t now);
// Ends every session and unit login of an account.
void end_sessions(Db& db, const std::string& user);

// The role's name, or "" for an unknown role.
std::string role_name(Db& db, int role);

}  // namespace sim
