// pernix-sim: looks after the simulator's database (the one PERNIX_SIM_DB
// names, as the library itself would open it).
//
//   pernix-sim init                 create and seed the database if needed
//   pernix-sim show                 a readable summary of the simulated array
//   pernix-sim reset --yes          start over from the default array
//   pernix-sim faults               list the fault rules
//   pernix-sim faults add FUNCTION CODE [@always|@N|@pP[:SEED]]
//   pernix-sim faults clear [ID]
//   pernix-sim clock [+S|-S|set EPOCH|freeze|real]
//   pernix-sim audit [N]            the last N audit entries (default 20)
//   pernix-sim pair WORDS...        what a host does through a command device:
//                                   create mirror P S | create sync P R |
//                                   create async P R G | split|resync|delete KIND LU
//   pernix-sim codes                the simulator's result codes
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

#include "sim/core/call.h"
#include "sim/core/codes.h"
#include "sim/model/model.h"
#include "sim/model/replication.h"

namespace {

using sim::Db;

int usage() {
  std::fputs(
      "usage: pernix-sim init | show | reset --yes | faults [add FUNCTION CODE [@always|@N|@pP[:SEED]] | "
      "clear [ID]] | clock [+S|-S|set EPOCH|freeze|real] | audit [N] | pair WORDS... | codes\n"
      "The database is PERNIX_SIM_DB (default ~/.local/state/pernix-sim/array.db).\n",
      stderr);
  return 2;
}

std::string when(int64_t t) {
  time_t tt = static_cast<time_t>(t);
  struct tm tm;
  gmtime_r(&tt, &tm);
  char buf[32];
  std::strftime(buf, sizeof buf, "%Y-%m-%d %H:%M:%S UTC", &tm);
  return buf;
}

void warn_options() {
  std::vector<std::string> errors;
  sim::Options::load(&errors);
  for (const auto& e : errors) std::fprintf(stderr, "pernix-sim: option %s (default kept)\n", e.c_str());
}

// Prints the rows of a table, columns named, at most `limit` rows.
void dump(Db& db, const std::string& table, int limit) {
  std::string q = "SELECT * FROM \"" + table + "\" LIMIT " + std::to_string(limit + 1);
  sqlite3_stmt* s = nullptr;
  if (sqlite3_prepare_v2(db.handle(), q.c_str(), -1, &s, nullptr) != SQLITE_OK) return;
  int cols = sqlite3_column_count(s);
  int rows = 0;
  while (sqlite3_step(s) == SQLITE_ROW) {
    if (++rows > limit) {
      std::printf("    ...\n");
      break;
    }
    std::printf("   ");
    for (int i = 0; i < cols; ++i) {
      const char* name = sqlite3_column_name(s, i);
      if (sqlite3_column_type(s, i) == SQLITE_BLOB) {
        std::printf(" %s=<%d bytes>", name, sqlite3_column_bytes(s, i));
      } else {
        auto v = sqlite3_column_text(s, i);
        std::printf(" %s=%s", name, v ? reinterpret_cast<const char*>(v) : "NULL");
      }
    }
    std::printf("\n");
  }
  sqlite3_finalize(s);
}

int count(Db& db, const std::string& table) {
  std::string q = "SELECT count(*) FROM \"" + table + "\"";
  sqlite3_stmt* s = nullptr;
  int n = -1;
  if (sqlite3_prepare_v2(db.handle(), q.c_str(), -1, &s, nullptr) == SQLITE_OK && sqlite3_step(s) == SQLITE_ROW)
    n = sqlite3_column_int(s, 0);
  sqlite3_finalize(s);
  return n;
}

int show(Db& db) {
  sim::Tx tx(db, sim::Tx::kRead);
  int64_t now = sim::clock_now(db);
  std::printf("database  %s\n", db.path().c_str());
  std::printf("array     serial %s, controllers %s and %s\n", sim::meta(db, "array_serial").c_str(),
              sim::meta(db, "array_ip0").c_str(), sim::meta(db, "array_ip1").c_str());
  std::printf("clock     %s (offset %s s)\n", when(now).c_str(), sim::meta(db, "clock_offset", "0").c_str());
  std::printf("units     (registered)\n");
  {
    auto s = db.sql("SELECT name, ctl0, ctl1, group_name FROM units ORDER BY seq");
    while (s.step())
      std::printf("    %-16s %s / %s  group %s\n", s.text(0).c_str(), s.text(1).c_str(), s.text(2).c_str(),
                  s.text(3).c_str());
  }
  {
    // The password is kept only as a hash: what a new database would be
    // seeded with is all the tool can tell.
    sim::Options o = sim::Options::load();
    std::printf("log in    as %s with password '%s' (the seeded administrator, unless changed since)\n",
                o.admin_user.c_str(), o.admin_password.c_str());
  }
  std::printf("accounts\n");
  {
    auto s = db.sql(
        "SELECT a.user, coalesce(r.name, a.role), a.enabled, "
        "(SELECT count(*) FROM sessions s WHERE s.user=a.user AND s.expires>?1) "
        "FROM accounts a LEFT JOIN roles r ON r.id=a.role ORDER BY a.user");
    s.bind(now);
    while (s.step())
      std::printf("    %-16s role %-22s %s, %d live session(s)\n", s.text(0).c_str(), s.text(1).c_str(),
                  s.i(2) ? "enabled" : "disabled", s.i(3));
  }
  // The families' own tables, whatever they hold.
  static const char* core[] = {"meta", "units", "discover", "audit", "faults", "settings",
                               "roles", "accounts", "sessions", "unit_logins"};
  std::vector<std::string> tables;
  {
    auto s = db.sql("SELECT name FROM sqlite_schema WHERE type='table' ORDER BY rowid");
    while (s.step()) {
      std::string t = s.text(0);
      bool skip = false;
      for (const char* c : core) skip = skip || t == c;
      if (!skip) tables.push_back(t);
    }
  }
  for (const auto& t : tables) {
    int n = count(db, t);
    std::printf("%s: %d row(s)\n", t.c_str(), n);
    if (n > 0 && t != "drives") dump(db, t, 12);
  }
  if (count(db, "drives") > 0) {
    std::printf("drives by state\n");
    sqlite3_stmt* s = nullptr;
    if (sqlite3_prepare_v2(db.handle(), "SELECT state, count(*) FROM drives GROUP BY state", -1, &s, nullptr) ==
        SQLITE_OK) {
      while (sqlite3_step(s) == SQLITE_ROW)
        std::printf("    state %s: %d\n", reinterpret_cast<const char*>(sqlite3_column_text(s, 0)),
                    sqlite3_column_int(s, 1));
    }
    sqlite3_finalize(s);
  }
  std::printf("fault rules: %d\n", count(db, "faults"));
  dump(db, "faults", 20);
  std::printf("settings kept: %d\n", count(db, "settings"));
  std::printf("audit log: %d entries, the last:\n", count(db, "audit"));
  auto s = db.sql("SELECT time, unit, user, function, object, result FROM audit ORDER BY id DESC LIMIT 5");
  while (s.step())
    std::printf("    %s  %s %s %s %s -> %d\n", when(s.i64(0)).c_str(), s.text(1).c_str(), s.text(2).c_str(),
                s.text(3).c_str(), s.text(4).c_str(), s.i(5));
  return 0;
}

int reset(Db& db) {
  warn_options();
  sim::Tx tx(db, sim::Tx::kWrite);
  std::vector<std::string> tables;
  {
    auto s = db.sql("SELECT name FROM sqlite_schema WHERE type='table' AND name NOT LIKE 'sqlite_%'");
    while (s.step()) tables.push_back(s.text(0));
  }
  db.exec("PRAGMA foreign_keys=OFF");
  for (const auto& t : tables) db.exec(("DROP TABLE \"" + t + "\"").c_str());
  sim::create_model(db);
  tx.commit();
  db.exec("PRAGMA foreign_keys=ON");
  std::printf("%s: the default array again\n", db.path().c_str());
  return 0;
}

int faults(Db& db, int argc, char** argv) {
  if (argc == 0) {
    sim::Tx tx(db, sim::Tx::kRead);
    auto s = db.sql("SELECT id, function, code, mode, n, prob, seed, calls, fired FROM faults ORDER BY id");
    int rows = 0;
    while (s.step()) {
      ++rows;
      std::printf("%3d  %-32s code %d  %s", s.i(0), s.text(1).c_str(), s.i(2), s.text(3).c_str());
      if (s.text(3) == "nth") std::printf(" %" PRId64, s.i64(4));
      if (s.text(3) == "prob") std::printf(" p=%g seed=%" PRId64, s.d(5), s.i64(6));
      std::printf("  (calls %" PRId64 ", fired %" PRId64 ")\n", s.i64(7), s.i64(8));
    }
    if (!rows) std::printf("no fault rules\n");
    return 0;
  }
  std::string verb = argv[0];
  if (verb == "clear") {
    sim::Tx tx(db, sim::Tx::kWrite);
    if (argc > 1) {
      auto s = db.sql("DELETE FROM faults WHERE id=?1");
      s.bind(std::atoi(argv[1])).run();
    } else {
      db.exec("DELETE FROM faults");
    }
    tx.commit();
    return 0;
  }
  if (verb != "add" || argc < 3) return usage();
  std::string fn = argv[1];
  if (fn != "*" && fn.rfind("KX_", 0) != 0) {
    std::fprintf(stderr, "pernix-sim: %s is not a KX_ function (or *)\n", fn.c_str());
    return 2;
  }
  char* end = nullptr;
  long code = std::strtol(argv[2], &end, 10);
  if (*end || code == 0) {
    std::fprintf(stderr, "pernix-sim: code '%s' must be a non-zero number\n", argv[2]);
    return 2;
  }
  std::string mode = "always";
  int64_t n = 0, seed = 0;
  double p = 0;
  if (argc > 3) {
    std::string w = argv[3];
    if (w.empty() || w[0] != '@') return usage();
    w = w.substr(1);
    if (w == "always") {
    } else if (!w.empty() && w[0] == 'p') {
      mode = "prob";
      p = std::strtod(w.c_str() + 1, &end);
      if (*end == ':') seed = std::strtoll(end + 1, &end, 10);
      if (*end || p < 0 || p > 1) return usage();
    } else {
      mode = "nth";
      n = std::strtoll(w.c_str(), &end, 10);
      if (*end || n < 1) return usage();
    }
  }
  sim::Tx tx(db, sim::Tx::kWrite);
  auto s = db.sql("INSERT INTO faults(function, code, mode, n, prob, seed) VALUES(?1,?2,?3,?4,?5,?6)");
  s.bind(fn).bind(static_cast<int>(code)).bind(mode).bind(n).bind(p).bind(seed).run();
  tx.commit();
  return 0;
}

int clock_cmd(Db& db, int argc, char** argv) {
  sim::Tx tx(db, sim::Tx::kWrite);
  int64_t offset = std::atoll(sim::meta(db, "clock_offset", "0").c_str());
  std::string frozen = sim::meta(db, "clock_frozen");
  int64_t base = frozen.empty() ? static_cast<int64_t>(std::time(nullptr)) : std::atoll(frozen.c_str());
  if (argc > 0) {
    std::string a = argv[0];
    char* end = nullptr;
    if (a == "real") {
      offset = 0;
      frozen.clear();
      base = static_cast<int64_t>(std::time(nullptr));
      db.exec("DELETE FROM meta WHERE key='clock_frozen'");
    } else if (a == "freeze") {
      // Stands still at the simulator's present moment.
      base += offset;
      offset = 0;
      frozen = std::to_string(base);
      sim::set_meta(db, "clock_frozen", frozen);
    } else if (a == "set" && argc > 1) {
      int64_t t = std::strtoll(argv[1], &end, 10);
      if (*end) return usage();
      offset = t - base;
    } else if (a[0] == '+' || a[0] == '-') {
      int64_t d = std::strtoll(a.c_str(), &end, 10);
      if (*end) return usage();
      offset += d;
    } else {
      return usage();
    }
    sim::set_meta(db, "clock_offset", std::to_string(offset));
  }
  tx.commit();
  std::printf("%s (offset %" PRId64 " s%s)\n", when(base + offset).c_str(), offset,
              frozen.empty() ? "" : ", frozen");
  return 0;
}

int audit(Db& db, int argc, char** argv) {
  int n = argc > 0 ? std::atoi(argv[0]) : 20;
  sim::Tx tx(db, sim::Tx::kRead);
  auto s = db.sql(
      "SELECT * FROM (SELECT id, time, unit, user, function, object, result FROM audit ORDER BY id DESC "
      "LIMIT ?1) ORDER BY id");
  s.bind(n > 0 ? n : 20);
  while (s.step())
    std::printf("%6d %s  %-10s %-12s %-32s %-24s %d\n", s.i(0), when(s.i64(1)).c_str(), s.text(2).c_str(),
                s.text(3).c_str(), s.text(4).c_str(), s.text(5).c_str(), s.i(6));
  return 0;
}

// Copy pairs are made and split by hosts through a command device, not
// through the array library: the tool plays that host.
int pair(Db& db, int argc, char** argv) {
  if (argc == 0) return usage();
  std::vector<std::string> words(argv, argv + argc);
  sim::Tx tx(db, sim::Tx::kWrite);
  std::string done = sim::pair_command(db, sim::clock_now(db), words);
  tx.commit();
  std::printf("%s\n", done.c_str());
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return usage();
  std::string cmd = argv[1];
  if (cmd == "codes") {
    for (int c = 12289; c <= 12308; ++c) std::printf("%d  %s\n", c, sim::describe(c));
    return 0;
  }
  if (cmd == "reset" && (argc < 3 || std::strcmp(argv[2], "--yes") != 0)) {
    std::fprintf(stderr, "pernix-sim: reset replaces the whole simulated array; say 'reset --yes'\n");
    return 2;
  }
  try {
    std::lock_guard<std::mutex> guard(Db::lock());
    if (cmd == "init") warn_options();
    Db& db = Db::open();
    if (cmd == "init") {
      std::printf("%s\n", db.path().c_str());
      return 0;
    }
    if (cmd == "show") return show(db);
    if (cmd == "reset") return reset(db);
    if (cmd == "faults") return faults(db, argc - 2, argv + 2);
    if (cmd == "clock") return clock_cmd(db, argc - 2, argv + 2);
    if (cmd == "audit") return audit(db, argc - 2, argv + 2);
    if (cmd == "pair") return pair(db, argc - 2, argv + 2);
    return usage();
  } catch (const sim::Error& e) {
    std::fprintf(stderr, "pernix-sim: %s: %s (code %d: %s)\n", Db::path_from_env().c_str(), e.what.c_str(),
                 e.code, sim::describe(e.code));
    return 1;
  }
}
