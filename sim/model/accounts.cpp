// Roles, accounts, sessions, unit logins, the alert-check user, the array's
// file-based user tables and the named info items.
//
//   roles(id, name, rights)          rights: nine '0'/'1' in OwnUserPermission order
//   accounts(user, hash, ...)        hash: argon2id string, never the password
//   sessions(token, user, unit, kind, created, expires)
//   unit_logins(unit, mode, user, expires)
//   alert_check(id=1, user, enabled, hash)   hash: the account's hash when it was set
//   array_users(path, user, level, hash, must_change)
//   info_items(name, value)
#include "sim/model/accounts.h"

#include <sodium.h>

#include <cstdlib>
#include <cstring>
#include <ctime>

#include "sim/core/text.h"
#include "sim/model/model.h"

namespace sim {

namespace {

// argon2id at libsodium's interactive operations count with 4 MiB: about
// 10 ms of CPU a login or password change on the 2-core build machine (8 MiB
// doubled that, and the tests hash some forty passwords each).  Dear enough
// for someone holding a copy of the database, cheap for a login.
constexpr unsigned long long kOpsLimit = crypto_pwhash_OPSLIMIT_INTERACTIVE;
constexpr size_t kMemLimit = 4u << 20;

void start_sodium() {
  if (sodium_init() < 0) fail(kDbError, "libsodium did not start");
}

int64_t meta_int(Db& db, std::string_view key, int64_t fallback) {
  std::string v = meta(db, key);
  if (v.empty()) return fallback;
  char* end = nullptr;
  long long n = std::strtoll(v.c_str(), &end, 10);
  return *end ? fallback : n;
}

}  // namespace

Secret::Secret(const char* p, size_t cap, const char* what) {
  if (!p) fail(kBadParameter, std::string(what) + ": null");
  auto end = static_cast<const char*>(std::memchr(p, 0, cap));
  if (!end) fail(kBadParameter, std::string(what) + ": not terminated");
  s_.assign(p, static_cast<size_t>(end - p));
}

Secret::~Secret() { sodium_memzero(s_.data(), s_.size()); }

std::string hash_password(const std::string& password) {
  start_sodium();
  char out[crypto_pwhash_STRBYTES];
  if (crypto_pwhash_str(out, password.data(), password.size(), kOpsLimit, kMemLimit) != 0)
    fail(kDbError, "password hashing ran out of memory");
  return out;
}

bool verify_password(const std::string& hash, const std::string& password) {
  start_sodium();
  return crypto_pwhash_str_verify(hash.c_str(), password.data(), password.size()) == 0;
}

int64_t session_timeout(Db& db) { return meta_int(db, "session_timeout", 1800); }
int password_min_length(Db& db) { return static_cast<int>(meta_int(db, "password_min_length", 6)); }
int keep_alive_time(Db& db) { return static_cast<int>(meta_int(db, "keep_alive_time", 300)); }

void check_new_password(Db& db, const std::string& password, size_t max) {
  size_t min = static_cast<size_t>(password_min_length(db));
  if (password.size() < min) fail(kBadParameter, "password shorter than " + std::to_string(min));
  if (password.size() > max) fail(kBadParameter, "password longer than " + std::to_string(max));
  for (unsigned char ch : password)
    if (ch < 0x20 || ch == 0x7f) fail(kBadParameter, "password holds a control character");
}

void purge_sessions(Db& db, int64_t now) {
  db.sql("DELETE FROM sessions WHERE expires <= ?1").bind(now - kExpiredKept).run();
  db.sql("DELETE FROM unit_logins WHERE expires <= ?1").bind(now - kExpiredKept).run();
}

void end_sessions(Db& db, const std::string& user) {
  db.sql("DELETE FROM sessions WHERE user=?1").bind(user).run();
  db.sql("DELETE FROM unit_logins WHERE user=?1").bind(user).run();
}

std::string role_name(Db& db, int role) {
  auto s = db.sql("SELECT name FROM roles WHERE id=?1");
  s.bind(role);
  return s.step() ? s.text(0) : std::string();
}

void create_accounts(Db& db, const Options& o) {
  db.exec(R"(
    CREATE TABLE roles(id INT PRIMARY KEY, name TEXT NOT NULL, rights TEXT NOT NULL);
    CREATE TABLE accounts(user TEXT PRIMARY KEY, hash TEXT NOT NULL, account_type INT NOT NULL,
      role INT NOT NULL, enabled INT NOT NULL, created INT NOT NULL);
    CREATE TABLE sessions(token BLOB PRIMARY KEY, user TEXT NOT NULL, unit TEXT NOT NULL,
      kind INT NOT NULL, created INT NOT NULL, expires INT NOT NULL);
    CREATE INDEX sessions_by_user ON sessions(user);
    CREATE TABLE unit_logins(unit TEXT NOT NULL, mode INT NOT NULL, user TEXT NOT NULL,
      expires INT NOT NULL, PRIMARY KEY(unit, mode));
    CREATE TABLE alert_check(id INT PRIMARY KEY CHECK(id=1), user TEXT NOT NULL,
      enabled INT NOT NULL, hash TEXT NOT NULL);
    CREATE TABLE array_users(path TEXT NOT NULL, user TEXT NOT NULL, level INT NOT NULL,
      hash TEXT NOT NULL, must_change INT NOT NULL, seq INTEGER NOT NULL,
      PRIMARY KEY(path, user));
    CREATE TABLE info_items(name TEXT PRIMARY KEY, value INT NOT NULL);
    INSERT INTO roles VALUES(0, 'Administrator', '111111111');
    INSERT INTO roles VALUES(1, 'StorageAdmin', '011111110');
    INSERT INTO roles VALUES(2, 'Monitor', '000000000');
  )");
  int64_t keep = o.session_timeout / 2 < 300 ? o.session_timeout / 2 : 300;
  set_meta(db, "keep_alive_time", std::to_string(keep));
  auto a = db.sql("INSERT INTO accounts VALUES(?1, ?2, 0, 0, 1, ?3)");
  a.bind(o.admin_user).bind(hash_password(o.admin_password)).bind(static_cast<int64_t>(time(nullptr))).run();
}

}  // namespace sim
