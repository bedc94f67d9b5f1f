#include "sim/core/store.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>

namespace sim {

namespace {

// Marks a database as the simulator's ("PNXS"), so a user's other SQLite
// files are never mistaken for one and never changed.
constexpr int kApplicationId = 0x504E5853;

std::unique_ptr<Db>& current() {
  static std::unique_ptr<Db> db;
  return db;
}

bool dir_exists(const std::string& dir) {
  struct stat st;
  return stat(dir.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

std::string parent_of(const std::string& path) {
  auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

// mkdir -p for the default state folder only: a path the user names must
// lie in a folder that exists.
bool make_dirs(const std::string& dir) {
  if (dir.empty() || dir_exists(dir)) return true;
  if (!make_dirs(parent_of(dir))) return false;
  return mkdir(dir.c_str(), 0700) == 0 || errno == EEXIST;
}

int busy_ms() {
  const char* v = std::getenv("PERNIX_SIM_BUSY_MS");
  int ms = v ? std::atoi(v) : 5000;
  return ms > 0 ? ms : 5000;
}

}  // namespace

void fail(int code, std::string what) { throw Error{code, std::move(what)}; }

// ---- Stmt

Stmt::~Stmt() {
  sqlite3_reset(s_);
  sqlite3_clear_bindings(s_);
}

Stmt& Stmt::bind(int v) {
  sqlite3_bind_int(s_, next_++, v);
  return *this;
}
Stmt& Stmt::bind(int64_t v) {
  sqlite3_bind_int64(s_, next_++, v);
  return *this;
}
Stmt& Stmt::bind(double v) {
  sqlite3_bind_double(s_, next_++, v);
  return *this;
}
Stmt& Stmt::bind(std::string_view v) {
  sqlite3_bind_text(s_, next_++, v.data(), static_cast<int>(v.size()), SQLITE_TRANSIENT);
  return *this;
}
Stmt& Stmt::blob(const void* p, size_t n) {
  sqlite3_bind_blob(s_, next_++, p, static_cast<int>(n), SQLITE_TRANSIENT);
  return *this;
}
Stmt& Stmt::null() {
  sqlite3_bind_null(s_, next_++);
  return *this;
}

bool Stmt::step() {
  int rc = sqlite3_step(s_);
  if (rc == SQLITE_ROW) return true;
  if (rc == SQLITE_DONE) return false;
  db_.raise(rc, sqlite3_sql(s_));
}

void Stmt::run() {
  while (step()) {
  }
}

std::string Stmt::text(int col) const {
  auto p = sqlite3_column_text(s_, col);
  return p ? std::string(reinterpret_cast<const char*>(p),
                         static_cast<size_t>(sqlite3_column_bytes(s_, col)))
           : std::string();
}

std::span<const uint8_t> Stmt::bytes(int col) const {
  auto p = static_cast<const uint8_t*>(sqlite3_column_blob(s_, col));
  return {p, p ? static_cast<size_t>(sqlite3_column_bytes(s_, col)) : 0};
}

// ---- Db

std::mutex& Db::lock() {
  static std::mutex m;
  return m;
}

std::string Db::path_from_env() {
  if (const char* p = std::getenv("PERNIX_SIM_DB"); p && *p) return p;
  std::string dir;
  if (const char* s = std::getenv("XDG_STATE_HOME"); s && *s == '/') {
    dir = s;
  } else if (const char* h = std::getenv("HOME"); h && *h) {
    dir = std::string(h) + "/.local/state";
  } else {
    dir = "/tmp";
  }
  return dir + "/pernix-sim/array.db";
}

Db& Db::open() {
  auto& db = current();
  std::string path = path_from_env();
  if (db && db->path_ == path) return *db;
  db.reset();
  if (!std::getenv("PERNIX_SIM_DB") || !*std::getenv("PERNIX_SIM_DB")) {
    if (!make_dirs(parent_of(path))) fail(kDbMissing, "cannot create " + parent_of(path));
  } else if (!dir_exists(parent_of(path))) {
    fail(kDbMissing, "no folder " + parent_of(path));
  }
  std::unique_ptr<Db> fresh(new Db(path));
  fresh->init();
  db = std::move(fresh);
  return *db;
}

void Db::close() { current().reset(); }

Db::Db(std::string path) : path_(std::move(path)) {
  int rc = sqlite3_open_v2(path_.c_str(), &h_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
  if (rc != SQLITE_OK) {
    sqlite3_close_v2(h_);
    h_ = nullptr;
    raise(rc, "open");
  }
  sqlite3_busy_timeout(h_, busy_ms());
  sqlite3_extended_result_codes(h_, 0);
}

Db::~Db() {
  for (auto& [text, s] : cache_) sqlite3_finalize(s);
  if (h_) sqlite3_close_v2(h_);
}

void Db::init() {
  // A file that is not a database fails here, before anything is written.
  int app = 0, tables = 0;
  {
    auto s = sql("PRAGMA application_id");
    if (s.step()) app = s.i(0);
  }
  {
    auto s = sql("SELECT count(*) FROM sqlite_schema");
    if (s.step()) tables = s.i(0);
  }
  if (app != kApplicationId && tables != 0) fail(kDbCorrupt, path_ + " is not a simulator database");
  if (access(path_.c_str(), W_OK) == 0) {
    // WAL: readers keep their snapshot while a writer commits, and a commit
    // survives the process being killed; NORMAL syncs at checkpoints only,
    // which loses nothing on a process kill (only on power loss).
    exec("PRAGMA journal_mode=WAL");
    exec("PRAGMA synchronous=NORMAL");
  }
  exec("PRAGMA foreign_keys=ON");
  if (app != kApplicationId) {
    Tx tx(*this, Tx::kWrite);
    // Another process may have created it between our look and our lock.
    bool ours = false;
    {
      auto s = sql("PRAGMA application_id");
      ours = s.step() && s.i(0) == kApplicationId;
    }
    if (!ours) {
      create_model(*this);
      exec(("PRAGMA application_id=" + std::to_string(kApplicationId)).c_str());
    }
    tx.commit();
  }
}

Stmt Db::sql(const char* text) {
  auto it = cache_.find(text);
  if (it == cache_.end()) {
    sqlite3_stmt* s = nullptr;
    int rc = sqlite3_prepare_v3(h_, text, -1, SQLITE_PREPARE_PERSISTENT, &s, nullptr);
    if (rc != SQLITE_OK) raise(rc, text);
    it = cache_.emplace(text, s).first;
  }
  return Stmt(*this, it->second);
}

void Db::exec(const char* text) {
  int rc = sqlite3_exec(h_, text, nullptr, nullptr, nullptr);
  if (rc != SQLITE_OK) raise(rc, text);
}

void Db::raise(int rc, const char* where) {
  std::string what = std::string(sqlite3_errstr(rc)) + " (" + (where ? where : "") + ")";
  if (h_ && sqlite3_errmsg(h_)) what = std::string(sqlite3_errmsg(h_)) + " (" + (where ? where : "") + ")";
  switch (rc & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      fail(kDbLocked, what);
    case SQLITE_READONLY:
      fail(kDbReadOnly, what);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      fail(kDbCorrupt, what);
    case SQLITE_CONSTRAINT:
      fail(kExists, what);
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
    case SQLITE_PERM:
      if (access(path_.c_str(), F_OK) == 0 && access(path_.c_str(), W_OK) != 0) fail(kDbReadOnly, what);
      fail(kDbError, what);
    default:
      fail(kDbError, what);
  }
}

// ---- Tx

Tx::Tx(Db& db, Mode mode) : db_(db) {
  db_.exec(mode == kWrite ? "BEGIN IMMEDIATE" : "BEGIN");
  open_ = true;
}

Tx::~Tx() {
  if (open_) sqlite3_exec(db_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Tx::commit() {
  db_.exec("COMMIT");
  open_ = false;
}

}  // namespace sim
