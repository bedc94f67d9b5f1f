// The storage layer: one SQLite connection per process, prepared statements
// kept for reuse, transactions as scopes.  Every failure becomes a sim::Error
// carrying the simulator's result code; nothing here prints.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

#include "sim/core/codes.h"

namespace sim {

// Thrown anywhere inside the simulator, caught at the edge of every KX_
// function and turned into its code.
struct Error {
  int code;
  std::string what;
};
[[noreturn]] void fail(int code, std::string what = {});

class Db;

// A prepared statement borrowed from the connection's cache; reset and
// unbound when the borrow ends.
class Stmt {
 public:
  Stmt(Db& db, sqlite3_stmt* s) : db_(db), s_(s) {}
  Stmt(const Stmt&) = delete;
  Stmt& operator=(const Stmt&) = delete;
  ~Stmt();

  Stmt& bind(int v);
  Stmt& bind(int64_t v);
  Stmt& bind(double v);
  Stmt& bind(std::string_view v);
  Stmt& bind(const char* v) { return bind(std::string_view(v)); }
  Stmt& blob(const void* p, size_t n);
  Stmt& null();

  bool step();                // true while a row is there
  void run();                 // steps to the end
  int i(int col) const { return sqlite3_column_int(s_, col); }
  int64_t i64(int col) const { return sqlite3_column_int64(s_, col); }
  double d(int col) const { return sqlite3_column_double(s_, col); }
  bool is_null(int col) const { return sqlite3_column_type(s_, col) == SQLITE_NULL; }
  std::string text(int col) const;
  std::span<const uint8_t> bytes(int col) const;

 private:
  Db& db_;
  sqlite3_stmt* s_;
  int next_ = 1;
};

class Db {
 public:
  // The database the environment names (PERNIX_SIM_DB), opened, checked and
  // seeded on first use; reopened when the path changes.
  static Db& open();
  // The process-wide lock every call holds while it uses the connection.
  static std::mutex& lock();
  static std::string path_from_env();
  // Closes the connection (the next open() starts afresh).
  static void close();

  Stmt sql(const char* text);
  void exec(const char* text);
  int64_t last_id() const { return sqlite3_last_insert_rowid(h_); }
  int changes() const { return sqlite3_changes(h_); }
  const std::string& path() const { return path_; }
  sqlite3* handle() const { return h_; }

  // Maps a SQLite result to the simulator's code and throws.
  [[noreturn]] void raise(int rc, const char* where);

  ~Db();

 private:
  explicit Db(std::string path);
  void init();

  std::string path_;
  sqlite3* h_ = nullptr;
  std::unordered_map<std::string, sqlite3_stmt*> cache_;
};

// One transaction: reads see one snapshot, writes take the write lock at the
// start (so a busy database is waited for once, up front).  Rolled back
// unless committed.
class Tx {
 public:
  enum Mode { kRead, kWrite };
  Tx(Db& db, Mode mode);
  Tx(const Tx&) = delete;
  Tx& operator=(const Tx&) = delete;
  ~Tx();
  void commit();

 private:
  Db& db_;
  bool open_ = false;
};

// The file the schema and default model live in (sim/model/schema.cpp):
// creates every table and seeds the default array into an empty database.
void create_model(Db& db);

}  // namespace sim
