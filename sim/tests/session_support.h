// What the session and account tests share: a check macro, a fresh database
// per group of cases, the simulator's clock stepped through SQLite, and
// logins.
#pragma once

#include <sqlite3.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

#include "account.h"
#include "session.h"

namespace t {

inline int failures = 0;

#define CHECK(cond)                                                           \
  do {                                                                        \
    if (!(cond)) {                                                            \
      std::fprintf(stderr, "%s:%d: CHECK(%s) failed\n", __FILE__, __LINE__, #cond); \
      ++t::failures;                                                          \
    }                                                                         \
  } while (0)

#define CHECK_EQ(a, b)                                                        \
  do {                                                                        \
    auto va_ = (a);                                                           \
    auto vb_ = (b);                                                           \
    if (!(va_ == vb_)) {                                                      \
      std::ostringstream os_;                                                 \
      os_ << va_ << " != " << vb_;                                            \
      std::fprintf(stderr, "%s:%d: %s == %s failed: %s\n", __FILE__, __LINE__, #a, #b, os_.str().c_str()); \
      ++t::failures;                                                          \
    }                                                                         \
  } while (0)

// Result codes as the simulator answers them.
enum {
  kUnknownUnit = 12289, kNotLoggedIn = 12290, kSessionExpired = 12291, kBadParameter = 12292,
  kExists = 12293, kNoSuchObject = 12294, kCapacity = 12295, kBusy = 12296, kPermission = 12298,
  kAuthFailed = 12299, kFileError = 12304, kBadFile = 12305, kUnreachable = 12306,
  kTooManySessions = 12308,
};

constexpr const char* kUnit = "SIM01";
constexpr const char* kAdmin = "admin";
constexpr const char* kAdminPassword = "admin-secret-1";

// A folder of its own for the whole program; each group takes a fresh
// database in it, seeded with known options.
struct Dir {
  std::string path;
  Dir() {
    char tmpl[] = "/tmp/pernix-sim-test-XXXXXX";
    path = mkdtemp(tmpl);
    setenv("PERNIX_SIM_UNIT", kUnit, 1);
    setenv("PERNIX_SIM_ADMIN_USER", kAdmin, 1);
    setenv("PERNIX_SIM_ADMIN_PASSWORD", kAdminPassword, 1);
    setenv("PERNIX_SIM_DISCOVER", "198.51.100.7", 1);
    unsetenv("PERNIX_SIM_CONFIG");
    unsetenv("PERNIX_SIM_FAULTS");
    unsetenv("PERNIX_SIM_SESSION_TIMEOUT");
    unsetenv("PERNIX_SIM_PASSWORD_MIN_LENGTH");
  }
  ~Dir() {
    std::string cmd = "rm -rf '" + path + "'";
    if (std::system(cmd.c_str()) != 0) std::fprintf(stderr, "could not remove %s\n", path.c_str());
  }
};

inline Dir& dir() {
  static Dir d;
  return d;
}

inline std::string db_path;

// Points the simulator at a new database (seeded on the next call).
inline void fresh_db(const char* name) {
  db_path = dir().path + "/" + name + ".db";
  setenv("PERNIX_SIM_DB", db_path.c_str(), 1);
  // Time moves only when a test steps it, however slow the machine.
  setenv("PERNIX_SIM_CLOCK", "frozen", 1);
}

// Runs SQL on the database beside the simulator's own connection.
inline void sql(const std::string& text) {
  sqlite3* h = nullptr;
  if (sqlite3_open(db_path.c_str(), &h) != SQLITE_OK) std::abort();
  sqlite3_busy_timeout(h, 5000);
  char* err = nullptr;
  if (sqlite3_exec(h, text.c_str(), nullptr, nullptr, &err) != SQLITE_OK) {
    std::fprintf(stderr, "sql: %s: %s\n", text.c_str(), err ? err : "?");
    sqlite3_free(err);
    std::abort();
  }
  sqlite3_close(h);
}

// The first column of the first row, as text ("" when there is none).
inline std::string sql_text(const std::string& text) {
  sqlite3* h = nullptr;
  if (sqlite3_open(db_path.c_str(), &h) != SQLITE_OK) std::abort();
  sqlite3_stmt* s = nullptr;
  if (sqlite3_prepare_v2(h, text.c_str(), -1, &s, nullptr) != SQLITE_OK) {
    std::fprintf(stderr, "sql: %s: %s\n", text.c_str(), sqlite3_errmsg(h));
    std::abort();
  }
  std::string v;
  if (sqlite3_step(s) == SQLITE_ROW && sqlite3_column_text(s, 0))
    v = reinterpret_cast<const char*>(sqlite3_column_text(s, 0));
  sqlite3_finalize(s);
  sqlite3_close(h);
  return v;
}

inline int sql_int(const std::string& text) { return std::atoi(sql_text(text).c_str()); }

// Moves the simulator's clock forward.
inline void step_clock(long seconds) {
  sql("UPDATE meta SET value = CAST(value AS INTEGER) + " + std::to_string(seconds) +
      " WHERE key='clock_offset'");
}

template <size_t N>
void put(char (&field)[N], const std::string& s) {
  std::memset(field, 0, N);
  std::memcpy(field, s.data(), s.size() < N ? s.size() : N);
}

inline int login(const char* user, const char* password, KXSessionInfoRec* s, const char* unit = kUnit) {
  KXAccountLoginRec l{};
  put(l.user_id, user);
  put(l.passwd, password);
  return KX_LoginKXAccount(unit, &l, s);
}

inline KXSessionInfoRec admin() {
  KXSessionInfoRec s{};
  int rc = login(kAdmin, kAdminPassword, &s);
  if (rc != 0) {
    std::fprintf(stderr, "admin login failed: %d\n", rc);
    std::abort();
  }
  return s;
}

inline int create_account(const KXSessionInfoRec& s, const char* user, const char* password, int role,
                          int enabled = 1) {
  KXAccountBaseInfoRec b{};
  put(b.user_id, user);
  b.set_passwd = 1;
  put(b.passwd, password);
  b.role = role;
  b.account_enable = enabled;
  return KX_CreateAccount(kUnit, &s, &b);
}

inline int unit_login(const char* user, const char* password, int mode = 0, KXLoginResultRec* out = nullptr) {
  KXUserInfoRec u{};
  put(u.user, user);
  put(u.passwd, password);
  KXLoginResultRec r{};
  return KX_LoginKXUnit(kUnit, mode, &u, out ? out : &r);
}

inline std::string read_file(const std::string& path) {
  std::ifstream f(path, std::ios::binary);
  std::stringstream ss;
  ss << f.rdbuf();
  return ss.str();
}

inline int finish(const char* name) {
  if (t::failures) {
    std::fprintf(stderr, "%s: %d check(s) failed\n", name, t::failures);
    return 1;
  }
  std::printf("%s: all checks passed\n", name);
  return 0;
}

}  // namespace t
